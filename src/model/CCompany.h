// The record of one employer.
#pragma once

#include "model/Entity.h"
#include "model/ModelErrors.h"
#include "store/rows/Rows.h"

#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace ptk {

class CJetDB;

// Setters store the value as it is; the fields are explained at CompanyRow.
class CCompany : public RowEntity<CompanyRow>
{
public:
    CCompany() = default;

    // A company as it was loaded; its state is unchanged.
    explicit CCompany(CompanyRow row);

    void CompanyID(std::int32_t value) { SetKey(m_row.CompanyID, value); }
    [[nodiscard]] std::int32_t CompanyID() const { return m_row.CompanyID; }
    void CompanyName(std::string value) { Change(&CompanyRow::CompanyName, std::move(value)); }
    [[nodiscard]] const std::string& CompanyName() const { return m_row.CompanyName; }
    void Address1(std::string value) { Change(&CompanyRow::Address1, std::move(value)); }
    [[nodiscard]] const std::string& Address1() const { return m_row.Address1; }
    void Address2(std::string value) { Change(&CompanyRow::Address2, std::move(value)); }
    [[nodiscard]] const std::string& Address2() const { return m_row.Address2; }
    void City(std::string value) { Change(&CompanyRow::City, std::move(value)); }
    [[nodiscard]] const std::string& City() const { return m_row.City; }
    void State(std::string value) { Change(&CompanyRow::State, std::move(value)); }
    [[nodiscard]] const std::string& State() const { return m_row.State; }
    void ZipCode(std::string value) { Change(&CompanyRow::ZipCode, std::move(value)); }
    [[nodiscard]] const std::string& ZipCode() const { return m_row.ZipCode; }
    void Phone(std::string value) { Change(&CompanyRow::Phone, std::move(value)); }
    [[nodiscard]] const std::string& Phone() const { return m_row.Phone; }
    void Fax(std::string value) { Change(&CompanyRow::Fax, std::move(value)); }
    [[nodiscard]] const std::string& Fax() const { return m_row.Fax; }
    void FederalTaxID(std::string value) { Change(&CompanyRow::FederalTaxID, std::move(value)); }
    [[nodiscard]] const std::string& FederalTaxID() const { return m_row.FederalTaxID; }
    void URL(std::string value) { Change(&CompanyRow::URL, std::move(value)); }
    [[nodiscard]] const std::string& URL() const { return m_row.URL; }

    // Adds, updates or deletes the row, as its state asks; false with 321 in any other state. The state is unchanged afterwards in every
    // case. A row that was changed in the database since it was read is not overwritten: false with the database's Conflict.
    bool Save(const std::shared_ptr<CJetDB>& thedatabase);

    // The whole record as text; lines end in CR LF. A failure leaves 806, and the text ends where it happened.
    std::string ToString();

    [[nodiscard]] const CompanyRow& Row() const { return Fields(); }
};

} // namespace ptk
