// The Company page: finds, shows, adds and changes companies.
#pragma once

#include "office/records/CompanyTexts.h"
#include "ui/people/TypedRecordPage.h"

#include <memory>
#include <QWidget>

namespace Ui {
class CompanyPage;
}

namespace ptk {

class CCompany;
class CCompanyList;

extern template class TypedRecordPage<CCompany, CCompanyList, CompanyTexts>;

class CompanyPage final : public QWidget, public TypedRecordPage<CCompany, CCompanyList, CompanyTexts>
{
    Q_OBJECT

public:
    explicit CompanyPage(PageHost& host, QWidget* parent = nullptr);
    ~CompanyPage() override;

    void ClearCompanyFields() { ClearFields(); }

    // Fills the lists of companies; false when there is no company list.
    bool FillCompanyLists();

    // Shows the company; false for nullptr.
    bool ShowCompany(const std::shared_ptr<CCompany>& thecompany) { return ShowRecord(thecompany); }

private:
    void PrepareLists();
    void ConnectButtons();
    void FitFields();
    void New();

    bool FillLists() override { return FillCompanyLists(); }
    bool Load() override;
    bool LoadAfresh();
    void ShowStatus(const CCompany& company) override;
    bool IsAccepted(const CompanyTexts& texts) override;
    void TellSaved(const std::string& told, const CompanyTexts& texts, const CCompany& saved) override;

    std::unique_ptr<Ui::CompanyPage> m_ui;
};

} // namespace ptk
