#include "ui/page/PageHost.h"

#include "platform/Required.h"
#include "startup/CController.h"
#include "store/CSystemOptions.h"

namespace ptk {

std::shared_ptr<CJetDB> PageHost::Database() const
{
    return Required(Required(Controller())->PTKDatabase());
}

std::shared_ptr<CEmployeeList> PageHost::Employees() const
{
    return Required(Required(Controller())->EmployeeList());
}

std::shared_ptr<CCompanyList> PageHost::Companies() const
{
    return Required(Required(Controller())->CompanyList());
}

std::shared_ptr<CSystemOptions> PageHost::Options() const
{
    return Required(Required(Controller())->SystemOptions());
}

std::int16_t PageHost::PeriodLength() const
{
    return Options()->PeriodLength();
}

} // namespace ptk
