#include "ui/page/Workplace.h"

#include "platform/Required.h"
#include "startup/CController.h"
#include "store/CSystemOptions.h"

namespace ptk {

std::shared_ptr<CJetDB> Workplace::Database() const
{
    return Required(Required(Controller())->PTKDatabase());
}

std::shared_ptr<CEmployeeList> Workplace::Employees() const
{
    return Required(Required(Controller())->EmployeeList());
}

std::shared_ptr<CCompanyList> Workplace::Companies() const
{
    return Required(Required(Controller())->CompanyList());
}

std::shared_ptr<CSystemOptions> Workplace::Options() const
{
    return Required(Required(Controller())->SystemOptions());
}

std::int16_t Workplace::PeriodLength() const
{
    return Options()->PeriodLength();
}

} // namespace ptk
