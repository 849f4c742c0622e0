// The Employees page: finds, shows, adds and changes employees.
#pragma once

#include "office/records/EmployeeTexts.h"
#include "office/records/LeftBehind.h"

#include "store/RowConflict.h"
#include "ui/page/RecordPage.h"

#include <array>
#include <cstdint>
#include <memory>
#include <QWidget>

class QComboBox;

namespace Ui {
class EmployeePage;
}

namespace ptk {

class CEmployee;
class CEmployeeList;
class PageHost;
enum class EmployeeText;

// A page without a chosen ID holds a new employee. What is refused stays on the page as it was typed.
class EmployeePage final : public QWidget, public RecordPage
{
    Q_OBJECT

public:
    explicit EmployeePage(PageHost& host, QWidget* parent = nullptr);
    ~EmployeePage() override;

    // Leaves the "Employee Active" box as it is.
    bool ClearEmployeeFields();

    // Also those of the time card and reports pages.
    bool FillEmployeeLists();

    void ReadAgain(std::optional<std::int64_t> row) override;
    [[nodiscard]] std::optional<Shown> IdleList() const override;
    [[nodiscard]] std::string Unsaved() const override;
    bool SaveTyped() override { return Save(); }
    void TellChanges() override;

    // False for nullptr.
    bool ShowEmployee(const std::shared_ptr<CEmployee>& theemployee);

    // With the keyboard in the first rate of theirs that is none. What was typed of somebody else is offered in the line.
    void ShowRate(std::int32_t employeeID);

private:
    struct KeyList
    {
        QComboBox* box;
        std::string EmployeeTexts::*text;
        EmployeeText shown;
        std::int32_t eventSource;
        int characters;
    };

    [[nodiscard]] std::array<KeyList, 4> KeyLists() const;
    void ConnectLists();
    void ConnectButtons();
    void FitFields();

    void Select(const KeyList& list);

    // nullptr also for one who has left the list.
    [[nodiscard]] std::shared_ptr<CEmployee> ChosenIn(const QComboBox& box) const;

    void ShowStatus(const CEmployee& employee);
    void Fill(const EmployeeTexts& texts);
    void EnableDeduction(bool enabled);
    void ShowPassword(bool shown);

    void New();
    void Cancel();
    void LeaveBehind(const std::optional<LeftBehind<EmployeeTexts>>& left);
    void BringBack(const LeftBehind<EmployeeTexts>& left);
    void PutBack(const LeftBehind<EmployeeTexts>& left);
    [[nodiscard]] std::shared_ptr<CEmployee> Of(const std::string& id) const;

    // These two: whether it is stored.
    bool Save();
    bool SaveTexts(const EmployeeTexts& texts);

    bool IsAccepted(const EmployeeTexts& texts);
    [[nodiscard]] std::string SavedID(const EmployeeTexts& texts) const;
    void ShowAgain(const std::string& id);
    void AskForPresent(const RowConflict& conflict, const std::string& id);

    // Whether the employees could be read again.
    bool Reload();

    void WarnOfSharedNumbers();

    [[nodiscard]] EmployeeTexts ReadTexts() const;

    // Raises Failure 91 when there is none.
    [[nodiscard]] std::shared_ptr<CEmployeeList> List() const;

    PageHost& m_host;
    std::unique_ptr<Ui::EmployeePage> m_ui;
    TypedTexts<EmployeeTexts> m_texts;
};

} // namespace ptk
