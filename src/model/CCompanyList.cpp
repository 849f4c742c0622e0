#include "model/CCompanyList.h"

#include "store/CJetDB.h"

namespace ptk {

std::shared_ptr<CCompany> CCompanyList::GetCompanyByID(std::int32_t theid)
{
    return First([&](const CCompany& company) { return company.CompanyID() == theid; });
}

std::shared_ptr<CCompany> CCompanyList::GetCompanyByName(std::string_view thename)
{
    return First([&](const CCompany& company) { return company.CompanyName() == thename; });
}

bool CCompanyList::InsertLoaded(CompanyRow row, std::int32_t position)
{
    return Insert(std::make_shared<CCompany>(std::move(row)), position) != nullptr;
}

bool CCompanyList::FillFrom(CJetDB& thedatabase)
{
    return thedatabase.LoadCompanyList(*this);
}

} // namespace ptk
