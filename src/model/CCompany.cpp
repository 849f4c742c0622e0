#include "model/CCompany.h"

#include "model/AddressText.h"
#include "store/CJetDB.h"

namespace ptk {

namespace {

constexpr StoreCalls<CompanyRow> kCompanyCalls{&CJetDB::AddNewCompany, &CJetDB::UpdateCompany, &CJetDB::UpdateCompany,
                                               &CJetDB::DeleteCompany, company::SaveFailed};

} // namespace

CCompany::CCompany(CompanyRow row) : RowEntity(std::move(row)) {}

bool CCompany::Save(const std::shared_ptr<CJetDB>& thedatabase)
{
    return SaveRow(thedatabase, &CompanyRow::CompanyID, kCompanyCalls);
}

std::string CCompany::ToString()
{
    return BuildText(company::TextFailed, [this](std::string& text) {
        text += "Company Name: \t" + m_row.CompanyName + "\r\n";
        AppendAddress(text, m_row);
        text += "Phone Number: \t\t" + m_row.Phone + "\r\n";
        text += "Fax Number: \t\t" + m_row.Fax + "\r\n";
        text += "Tax ID Number:   " + m_row.FederalTaxID + "\r\n";
        text += "Website URL: \t" + m_row.URL + "\r\n";
    });
}

} // namespace ptk
