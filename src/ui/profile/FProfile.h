// The window that makes or changes a profile of the accountant's table. It shows a preview of the table's first rows.
#pragma once

#include "office/profile/PayTable.h"
#include "office/profile/Profile.h"

#include <functional>
#include <memory>
#include <QDialog>
#include <span>
#include <vector>

class QComboBox;

namespace Ui {
class FProfile;
}

namespace ptk {

class FProfile final : public QDialog
{
    Q_OBJECT

public:
    // Stores the profile. Raises a failure that says why it could not.
    using Saver = std::function<void(const Profile& profile)>;

    // `people` are those of the preview, with their rows of the overview; they outlive the window.
    FProfile(QWidget* parent, const Profile& profile, std::span<const PaidPerson> people, Saver save);

    ~FProfile() override;

    // The profile that was stored, once the window was accepted.
    [[nodiscard]] const Profile& Stored() const { return m_profile; }

private:
    void PrepareColumns();
    void OfferColumns();
    void ConnectFields();
    void ConnectColumns();
    [[nodiscard]] std::vector<QComboBox*> OptionBoxes() const;

    void ShowColumns(int row);
    void TakeCell(int row, int column);
    void Add();
    void Remove();
    void Move(int by);
    void TakeFields();
    void ShowResult();
    void EnableMoving();
    void Save();

    std::unique_ptr<Ui::FProfile> m_ui;
    Profile m_profile;
    std::span<const PaidPerson> m_people;
    Saver m_save;
};

} // namespace ptk
