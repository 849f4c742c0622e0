// The window that saves what is paid as a table for the accountant. The user chooses a profile and sees the first rows of its table.
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

// Whose pay is saved, and the notices about them that are shown once it was, see PeopleOfReview. The window itself sets `people.most` and
// `people.withOverview`.
struct AccountantOrder
{
    PayTableOrder people;
    std::vector<std::string> notices{};
};

class FAccountant final : public QDialog
{
    Q_OBJECT

public:
    // Reads the profiles and the pay of the first people. Raises the failure of a database that cannot be opened or read. The desktop
    // outlives the window.
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
    PayTable m_first;                  // the people of the preview
};

} // namespace ptk
