// The texts of a company, as the company page shows and takes them.
#pragma once

#include <string>

namespace ptk {

class CCompany;

struct CompanyTexts
{
    std::string id; // empty for a new company
    std::string name;
    std::string address1;
    std::string address2;
    std::string city;
    std::string state;
    std::string zip;
    std::string phone;
    std::string fax;
    std::string federalTaxID;

    bool operator==(const CompanyTexts&) const = default;

    // Calls `visit` with a pointer to each member except the ID.
    template <typename Visit>
    static void ForEachField(Visit visit)
    {
        using Texts = CompanyTexts;
        for (std::string Texts::*text : {&Texts::name, &Texts::address1, &Texts::address2, &Texts::city, &Texts::state, &Texts::zip,
                                         &Texts::phone, &Texts::fax, &Texts::federalTaxID}) {
            visit(text);
        }
    }
};

[[nodiscard]] CompanyTexts ShowCompanyTexts(const CCompany& company);

// Puts the texts, except the ID, into the company. Its web address stays.
void ReadCompanyTexts(const CompanyTexts& texts, CCompany& company);

} // namespace ptk
