// The Employees page: finds, shows, adds and changes employees.
#pragma once

#include "office/EmployeeTexts.h"
#include "office/LeftBehind.h"

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
class EmployeePage final : public QWidget
{
    Q_OBJECT

public:
    explicit EmployeePage(PageHost& host, QWidget* parent = nullptr);
    ~EmployeePage() override;

    bool ClearEmployeeFields();                                       // leaves the "Employee Active" box as it is
    bool FillEmployeeLists();                                         // also those of the time card and reports pages
    bool ShowEmployee(const std::shared_ptr<CEmployee>& theemployee); // false for nullptr

private:
    struct KeyList
    {
        QComboBox* box;
        std::string EmployeeTexts::*text;
        EmployeeText shown;
        std::int32_t eventSource;
        int characters;
    };

    std::array<KeyList, 4> KeyLists() const;
    void ConnectLists();
    void ConnectButtons();
    void FitFields();

    void Select(const KeyList& list);
    std::shared_ptr<CEmployee> ChosenIn(const QComboBox& box) const; // nullptr also for one who has left the list
    void ShowStatus(const CEmployee& employee);
    void Fill(const EmployeeTexts& texts);
    void EnableDeduction(bool enabled);
    void ShowPassword(bool shown);

    void New();
    void Cancel();
    void LeaveBehind(const std::optional<LeftBehind<EmployeeTexts>>& left);
    void BringBack(const LeftBehind<EmployeeTexts>& left);

    void Save();
    bool IsAccepted(const EmployeeTexts& texts);
    void SaveTexts(const EmployeeTexts& texts);
    bool Reload(); // whether the employees could be read again
    void WarnOfSharedNumbers();

    EmployeeTexts ReadTexts() const;
    std::shared_ptr<CEmployeeList> List() const; // raises Failure 91 when there is none

    PageHost& m_host;
    std::unique_ptr<Ui::EmployeePage> m_ui;
    TypedTexts<EmployeeTexts> m_texts;
};

} // namespace ptk
