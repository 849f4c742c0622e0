// The personnel record of one employee.
#pragma once

#include "model/Entity.h"
#include "model/ModelErrors.h"
#include "platform/text/DateTime.h"
#include "store/rows/Rows.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>

namespace ptk {

class CJetDB;

// Setters store the value as it is; EmployeeRow explains the fields and their units.
class CEmployee : public RowEntity<EmployeeRow>
{
public:
    CEmployee() = default;

    // An employee as loaded; the state is unchanged.
    explicit CEmployee(EmployeeRow row);

    void EmployeeID(std::int32_t value) { SetKey(m_row.EmployeeID, value); }
    [[nodiscard]] std::int32_t EmployeeID() const { return m_row.EmployeeID; }
    void SSN(std::string value) { Change(&EmployeeRow::SSN, std::move(value)); }
    [[nodiscard]] const std::string& SSN() const { return m_row.SSN; }
    void EmployeeNumber(std::int32_t value) { Change(&EmployeeRow::EmployeeNumber, value); }
    [[nodiscard]] std::int32_t EmployeeNumber() const { return m_row.EmployeeNumber; }
    void FirstName(std::string value) { Change(&EmployeeRow::FirstName, std::move(value)); }
    [[nodiscard]] const std::string& FirstName() const { return m_row.FirstName; }
    void LastName(std::string value) { Change(&EmployeeRow::LastName, std::move(value)); }
    [[nodiscard]] const std::string& LastName() const { return m_row.LastName; }
    void Address1(std::string value) { Change(&EmployeeRow::Address1, std::move(value)); }
    [[nodiscard]] const std::string& Address1() const { return m_row.Address1; }
    void Address2(std::string value) { Change(&EmployeeRow::Address2, std::move(value)); }
    [[nodiscard]] const std::string& Address2() const { return m_row.Address2; }
    void City(std::string value) { Change(&EmployeeRow::City, std::move(value)); }
    [[nodiscard]] const std::string& City() const { return m_row.City; }
    void State(std::string value) { Change(&EmployeeRow::State, std::move(value)); }
    [[nodiscard]] const std::string& State() const { return m_row.State; }
    void ZipCode(std::string value) { Change(&EmployeeRow::ZipCode, std::move(value)); }
    [[nodiscard]] const std::string& ZipCode() const { return m_row.ZipCode; }
    void Phone(std::string value) { Change(&EmployeeRow::Phone, std::move(value)); }
    [[nodiscard]] const std::string& Phone() const { return m_row.Phone; }
    void Password(std::string value) { Change(&EmployeeRow::Password, std::move(value)); }
    [[nodiscard]] const std::string& Password() const { return m_row.Password; }
    void PayRate(float value) { Change(&EmployeeRow::PayRate, value); }
    [[nodiscard]] float PayRate() const { return m_row.PayRate; }
    void OvertimePayRate(float value) { Change(&EmployeeRow::OvertimePayRate, value); }
    [[nodiscard]] float OvertimePayRate() const { return m_row.OvertimePayRate; }
    void DateOfBirth(DateTime value) { Change(&EmployeeRow::DateOfBirth, value); }
    [[nodiscard]] DateTime DateOfBirth() const { return m_row.DateOfBirth; }
    void HireDate(DateTime value) { Change(&EmployeeRow::HireDate, value); }
    [[nodiscard]] DateTime HireDate() const { return m_row.HireDate; }
    void ReleaseDate(DateTime value) { Change(&EmployeeRow::ReleaseDate, value); }
    [[nodiscard]] DateTime ReleaseDate() const { return m_row.ReleaseDate; }
    void EmployeeActive(bool value) { Change(&EmployeeRow::EmployeeActive, value); }
    [[nodiscard]] bool EmployeeActive() const { return m_row.EmployeeActive; }
    void CompanyID(std::int32_t value) { Change(&EmployeeRow::CompanyID, value); }
    [[nodiscard]] std::int32_t CompanyID() const { return m_row.CompanyID; }
    void AutoDeduct(bool value) { Change(&EmployeeRow::AutoDeduct, value); }
    [[nodiscard]] bool AutoDeduct() const { return m_row.AutoDeduct; }
    void AutoDeductLunchLength(std::int16_t value) { Change(&EmployeeRow::AutoDeductLunchLength, value); }
    [[nodiscard]] std::int16_t AutoDeductLunchLength() const { return m_row.AutoDeductLunchLength; }
    void AutoDeductBreakLength(std::int16_t value) { Change(&EmployeeRow::AutoDeductBreakLength, value); }
    [[nodiscard]] std::int16_t AutoDeductBreakLength() const { return m_row.AutoDeductBreakLength; }

    // Adds, updates or deletes the row, as its state asks; false with 803 in any other state. The state is unchanged afterwards in every
    // case. A row that was changed in the database since it was read is not overwritten: false with the database's Conflict.
    bool Save(const std::shared_ptr<CJetDB>& thedatabase);

    // The whole record as text. In all three text forms lines end in CR LF; a failure leaves 806, and the text ends where it happened. The
    // labels' wording, blanks and tabs differ between the three, deliberately.
    std::string ToString();

    // The employee's lines at the head of a time card.
    std::string ToStringTimeCard();

    // The employee's lines above the figures in an accountant's review.
    std::string ToStringReview();

    // First name, blank, last name; the last name alone when there is no first name. The form in which the program shows and finds
    // employees.
    [[nodiscard]] std::string DisplayName() const;

    // Whether DisplayName is exactly this name; builds no text.
    [[nodiscard]] bool HasDisplayName(std::string_view name) const;

    // Whether the employee has hours to show: active, and not an administrator by display name.
    [[nodiscard]] bool OfferedOnTimeCards() const;

    [[nodiscard]] const EmployeeRow& Row() const { return Fields(); }
};

} // namespace ptk
