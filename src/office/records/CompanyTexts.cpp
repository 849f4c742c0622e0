#include "office/records/CompanyTexts.h"

#include "model/CCompany.h"

namespace ptk {

CompanyTexts ShowCompanyTexts(const CCompany& company)
{
    return {.id = std::to_string(company.CompanyID()),
            .name = company.CompanyName(),
            .address1 = company.Address1(),
            .address2 = company.Address2(),
            .city = company.City(),
            .state = company.State(),
            .zip = company.ZipCode(),
            .phone = company.Phone(),
            .fax = company.Fax(),
            .federalTaxID = company.FederalTaxID()};
}

void ReadCompanyTexts(const CompanyTexts& texts, CCompany& company)
{
    company.CompanyName(texts.name);
    company.Address1(texts.address1);
    company.Address2(texts.address2);
    company.City(texts.city);
    company.State(texts.state);
    company.ZipCode(texts.zip);
    company.Phone(texts.phone);
    company.Fax(texts.fax);
    company.FederalTaxID(texts.federalTaxID);
}

} // namespace ptk
