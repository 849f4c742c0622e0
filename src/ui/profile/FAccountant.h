// Saves what is paid as a table for the accountant: by which profile, with a look at its first rows.
#pragma once

#include "office/profile/PayTable.h"
#include "office/profile/Profiles.h"

#include <memory>
#include <QDialog>
#include <string>
#include <vector>

namespace Ui {
class FAccountant;
}

namespace ptk {

class Desktop;

// Whose pay, and what else there is to say of them, see PeopleOfReview. How many are read, and whether their checks are, is the window's.
struct AccountantOrder
{
    PayTableOrder people;
    std::vector<std::string> notices{};
};

class FAccountant final : public QDialog
{
    Q_OBJECT

public:
    // Reads the profiles and the first people. Raises the failure of a database that cannot be opened or read. The desktop
    // outlives it.
    FAccountant(QWidget* parent, ptk::Desktop& desktop, AccountantOrder order);

    ~FAccountant() override;

private:
    void ConnectControls();
    void Fill(const std::string& chosen);
    [[nodiscard]] const KnownProfile& Chosen() const;
    void Choose();
    void New();
    void Edit();
    void OpenEditor(const Profile& profile, const KnownProfile* replaced);
    void Delete();
    void Save();
    [[nodiscard]] std::string BytesFor(const Profile& profile, std::vector<std::string>& notices);
    void Say(const std::string& text);

    ptk::Desktop& m_desktop;
    AccountantOrder m_order;
    std::unique_ptr<Ui::FAccountant> m_ui;
    std::vector<KnownProfile> m_known; // in the box's order
    PayTable m_first;                  // of the preview
};

} // namespace ptk
