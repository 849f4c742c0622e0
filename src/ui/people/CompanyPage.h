// The Company page: finds, shows, adds and changes companies.
#pragma once

#include "office/records/CompanyTexts.h"
#include "office/records/LeftBehind.h"

#include "store/RowConflict.h"
#include "ui/page/RecordPage.h"

#include <array>
#include <cstdint>
#include <memory>
#include <QWidget>

class QComboBox;

namespace Ui {
class CompanyPage;
}

namespace ptk {

class CCompany;
class CCompanyList;
class PageHost;

// A page without a chosen ID holds a new company. What is refused stays on the page as it was typed.
class CompanyPage final : public QWidget, public RecordPage
{
    Q_OBJECT

public:
    explicit CompanyPage(PageHost& host, QWidget* parent = nullptr);
    ~CompanyPage() override;

    bool ClearCompanyFields();

    // False when there is no company list.
    bool FillCompanyLists();

    void ReadAgain(std::optional<std::int64_t> row) override;
    [[nodiscard]] std::optional<Shown> IdleList() const override;
    [[nodiscard]] std::string Unsaved() const override;
    bool SaveTyped() override { return Save(); }
    void TellChanges() override;

    // False for nullptr.
    bool ShowCompany(const std::shared_ptr<CCompany>& thecompany);

private:
    struct KeyList
    {
        QComboBox* box;
        std::string CompanyTexts::*text;
        std::int32_t eventSource;
        int characters;
    };

    [[nodiscard]] std::array<KeyList, 2> KeyLists() const;
    void PrepareLists();
    void ConnectButtons();
    void FitFields();

    void Select(const KeyList& list);

    // nullptr also for one that has left the list.
    [[nodiscard]] std::shared_ptr<CCompany> ChosenIn(const QComboBox& box) const;

    void ShowStatus(const CCompany& company);
    void Fill(const CompanyTexts& texts);

    void StartAnew();
    void LeaveBehind(const std::optional<LeftBehind<CompanyTexts>>& left);
    void BringBack(const LeftBehind<CompanyTexts>& left);
    void PutBack(const LeftBehind<CompanyTexts>& left);
    [[nodiscard]] std::shared_ptr<CCompany> Of(const std::string& id) const;

    // These two: whether it is stored.
    bool Save();
    bool SaveTexts(const CompanyTexts& texts);
    void AskForPresent(const RowConflict& conflict, const std::string& id);

    // Whether the companies could be read again.
    bool Reload();

    bool ReloadAfresh();

    [[nodiscard]] CompanyTexts ReadTexts() const;

    // Raises Failure 91 when there is none.
    [[nodiscard]] std::shared_ptr<CCompanyList> List() const;

    PageHost& m_host;
    std::unique_ptr<Ui::CompanyPage> m_ui;
    TypedTexts<CompanyTexts> m_texts;
};

} // namespace ptk
