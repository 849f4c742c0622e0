// All companies, as the controller keeps them and the company page edits them.
#pragma once

#include "model/CCompany.h"
#include "model/EntityList.h"

#include <cstdint>
#include <memory>
#include <string_view>

namespace ptk {

// The look-ups answer the first match in list order, or nullptr.
class CCompanyList final : public EntityList<CCompanyList, CCompany>, public CompanySink
{
public:
    std::shared_ptr<CCompany> GetCompanyByID(std::int32_t theid);

    // The name must match exactly, letter case included.
    std::shared_ptr<CCompany> GetCompanyByName(std::string_view thename);

    bool InsertLoaded(CompanyRow row, std::int32_t position) override;

private:
    bool FillFrom(CJetDB& thedatabase) override;
};

} // namespace ptk
