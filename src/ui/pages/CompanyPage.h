// The Company page: finds, shows, adds and changes companies.
#pragma once

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
class CompanyPage final : public QWidget
{
    Q_OBJECT

public:
    explicit CompanyPage(PageHost& host, QWidget* parent = nullptr);
    ~CompanyPage() override;

    bool ClearCompanyFields();
    bool FillCompanyLists();                                       // false when there is no company list
    bool ShowCompany(const std::shared_ptr<CCompany>& thecompany); // false for nullptr

private:
    void PrepareLists();
    void ConnectButtons();

    void Select(std::int32_t eventSource, const QComboBox& box);
    std::shared_ptr<CCompany> Find(std::int32_t eventSource, const QString& text) const;
    void ShowSelection(const CCompany& company);
    void ReadCompanyFields(CCompany& company) const;

    void StartAnew();
    void Save();
    void SaveFields();
    void Reload();
    void ReloadAfresh();

    std::shared_ptr<CCompanyList> List() const; // raises Failure 91 when there is none

    PageHost& m_host;
    std::unique_ptr<Ui::CompanyPage> m_ui;
};

} // namespace ptk
