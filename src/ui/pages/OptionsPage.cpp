#include "ui/pages/OptionsPage.h"

#include "office/OptionTexts.h"
#include "platform/BusyPointer.h"
#include "platform/Clock.h"
#include "platform/Desktop.h"
#include "startup/CController.h"
#include "startup/Notices.h"
#include "store/CSystemOptions.h"
#include "ui/pages/PageHost.h"
#include "ui_OptionsPage.h"

namespace ptk {

namespace {

constexpr auto kUpdateText = "An error occurred while updating the system options in the database.";
constexpr auto kRestoreTitle = "Restore Options Error";
constexpr auto kRestoreText = "An error occurred while restoring system options from the database.";

constexpr auto kApplied = "Options applied";
constexpr auto kRestored = "Options restored";

constexpr auto kTimeFormat = "hh:mm:ss AM/PM";

} // namespace

OptionsPage::OptionsPage(PageHost& host, QWidget* parent) : QWidget(parent), m_host(host), m_ui(std::make_unique<Ui::OptionsPage>())
{
    m_ui->setupUi(this);
    AlignFrames();
    m_ui->dttbAutoShiftStartTime->SetDisplayFormat(kTimeFormat);
    m_ui->dttbAutoShiftEndTime->SetDisplayFormat(kTimeFormat);
    connect(m_ui->txtPeriodLength, &QLineEdit::textChanged, this, &OptionsPage::ShowExample);
    connect(m_ui->cmdApplyOptions, &QPushButton::clicked, this, &OptionsPage::Apply);
    connect(m_ui->cmdCancelOptions, &QPushButton::clicked, this, &OptionsPage::Cancel);
}

OptionsPage::~OptionsPage() = default;

// The boxes of both frames stand below each other.
void OptionsPage::AlignFrames()
{
    m_ui->lblAutoShiftStartTime->setMinimumWidth(m_ui->lblPeriodLength->sizeHint().width());
    m_ui->txtPeriodLength->setMinimumWidth(m_ui->dttbAutoShiftStartTime->sizeHint().width());
}

// A period of 14 days deliberately has 15: one sees it before a payday depends on it.
void OptionsPage::ShowExample()
{
    const std::string length = m_ui->txtPeriodLength->text().toStdString();
    m_ui->lblPeriodExample->setText(QString::fromStdString(PeriodExample(length, m_host.Clock().Today())));
}

bool OptionsPage::DisplaySystemOptions(const std::shared_ptr<CSystemOptions>& options)
{
    if (options == nullptr) {
        return false;
    }
    const OptionTexts texts = ShowOptions(*options);
    m_ui->txtPeriodLength->setText(QString::fromStdString(texts.periodLength));
    m_ui->dttbAutoShiftStartTime->SetText(QString::fromStdString(texts.autoShiftStart));
    m_ui->dttbAutoShiftEndTime->SetText(QString::fromStdString(texts.autoShiftEnd));
    return true;
}

bool OptionsPage::SaveSystemOptions()
{
    try {
        const auto controller = m_host.Controller();
        const auto options = controller == nullptr ? nullptr : controller->SystemOptions();
        if (options == nullptr) {
            return false;
        }
        return StoreOptions(*options, {m_ui->txtPeriodLength->text().toStdString(), m_ui->dttbAutoShiftStartTime->Text().toStdString(),
                                       m_ui->dttbAutoShiftEndTime->Text().toStdString()});
    } catch (...) {
        return false;
    }
}

bool OptionsPage::RestoreSystemOptions()
{
    const auto controller = m_host.Controller();
    return controller != nullptr && DisplaySystemOptions(controller->SystemOptions());
}

void OptionsPage::Apply()
{
    m_ui->notice->Clear();
    const bool saved = [this] {
        const BusyPointer busy(m_host.Desktop());
        return SaveSystemOptions();
    }();
    if (saved) {
        m_ui->notice->Say(kApplied);
    } else {
        m_host.Desktop().Show(kUpdateText, notice::OptionsUnsaved.title, Icon::Exclamation);
    }
}

void OptionsPage::Cancel()
{
    m_ui->notice->Clear();
    if (RestoreSystemOptions()) {
        m_ui->notice->Say(kRestored);
    } else {
        m_host.Desktop().Show(kRestoreText, kRestoreTitle, Icon::Exclamation);
    }
}

} // namespace ptk
