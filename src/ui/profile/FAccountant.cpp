#include "ui/profile/FAccountant.h"

#include "office/reports/SaveReport.h"
#include "platform/Failure.h"
#include "platform/Succeeds.h"
#include "platform/system/Desktop.h"
#include "reports/ReportCards.h"
#include "ui/profile/FProfile.h"
#include "ui/profile/TablePreview.h"
#include "ui/work/KeepSettings.h"
#include "ui/work/SaveDialog.h"
#include "ui/work/WorkProgress.h"
#include "ui_FAccountant.h"

#include <QSettings>
#include <QSignalBlocker>

#include <fmt/format.h>

#include <algorithm>
#include <utility>

namespace ptk {

namespace {

constexpr auto kAccountantTitle = "Save for Accountant";
constexpr auto kReadingText = "Reading the time cards...";
constexpr auto kChosenKey = "accountant/profile";

constexpr auto kReadyTip = "This profile is always there as it is; New makes one of your own from it.";
constexpr auto kUnreadableTip = "This profile cannot be read.";
constexpr auto kDeleteQuestion = "Delete the profile \"{}\"?";
constexpr auto kNotDeleted = "Not deleted: {}.";
constexpr auto kIncomplete = "The table is ";
constexpr auto kEnded = "the reading was ended";

constexpr QSize kAccountantSize(860, 460);
constexpr QSize kAccountantSmallest(480, 320);
constexpr int kSaidLines = 2;

constexpr ReportForm kTableForm[] = {ReportForm::Csv};

} // namespace

FAccountant::FAccountant(QWidget* parent, ptk::Desktop& desktop, AccountantOrder order)
    : QDialog(parent), m_desktop(desktop), m_order(std::move(order)), m_ui(std::make_unique<Ui::FAccountant>())
{
    PayTableOrder first = m_order.people;
    first.most = kPreviewedPeople;
    first.withOverview = true;
    m_first = ReadPayTable(first).value();
    m_ui->setupUi(this);
    setMinimumSize(kAccountantSmallest);
    resize(kAccountantSize);
    m_ui->lblHint->KeepRoom(kSaidLines);
    setWindowTitle(windowTitle() + ": " + QString::fromStdString(TitleOfDays(first.period.from, first.period.to)));
    ConnectControls();
    Fill(QSettings().value(kChosenKey).toString().toStdString());
}

FAccountant::~FAccountant() = default;

void FAccountant::ConnectControls()
{
    connect(m_ui->cboProfile, &QComboBox::currentIndexChanged, this, &FAccountant::Choose);
    connect(m_ui->cmdNew, &QPushButton::clicked, this, &FAccountant::New);
    connect(m_ui->cmdEdit, &QPushButton::clicked, this, &FAccountant::Edit);
    connect(m_ui->cmdDelete, &QPushButton::clicked, this, &FAccountant::Delete);
    connect(m_ui->cmdSaveAs, &QPushButton::clicked, this, &FAccountant::Save);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &FAccountant::reject);
}

// Chooses the profile of that name, or the first one where there is none.
void FAccountant::Fill(const std::string& chosen)
{
    m_known = ReadProfiles(m_order.people.database);
    const auto found = std::find_if(m_known.begin(), m_known.end(), [&](const KnownProfile& known) { return known.name == chosen; });
    {
        const QSignalBlocker filling(m_ui->cboProfile);
        m_ui->cboProfile->clear();
        for (const KnownProfile& known : m_known) {
            m_ui->cboProfile->addItem(QString::fromStdString(known.name));
        }
        m_ui->cboProfile->setCurrentIndex(found == m_known.end() ? 0 : static_cast<int>(found - m_known.begin()));
    }
    Choose();
}

const KnownProfile& FAccountant::Chosen() const
{
    return m_known.at(static_cast<std::size_t>(std::max(0, m_ui->cboProfile->currentIndex())));
}

void FAccountant::Choose()
{
    const KnownProfile& known = Chosen();
    const bool readable = known.profile.has_value();
    m_ui->lblDescription->Say(QString::fromStdString(DescribeProfile(known)));
    m_ui->lblHint->Say(QString());
    ShowPreview(*m_ui->grdPreview, readable ? &*known.profile : nullptr, m_first.people);
    m_ui->cmdEdit->setEnabled(readable && !known.IsReady());
    m_ui->cmdEdit->setToolTip(known.IsReady() ? kReadyTip : (readable ? "" : kUnreadableTip));
    m_ui->cmdDelete->setEnabled(!known.IsReady());
    m_ui->cmdDelete->setToolTip(known.IsReady() ? kReadyTip : "");
    m_ui->cmdSaveAs->setEnabled(readable);
    m_ui->cmdSaveAs->setToolTip(readable ? "" : kUnreadableTip);
}

// The new profile begins as a copy of the chosen one.
void FAccountant::New()
{
    Profile profile = Chosen().profile.value_or(NewProfile());
    profile.name.clear();
    OpenEditor(profile, nullptr);
}

void FAccountant::Edit()
{
    const KnownProfile known = Chosen();
    OpenEditor(*known.profile, &known);
}

void FAccountant::OpenEditor(const Profile& profile, const KnownProfile* replaced)
{
    FProfile editor(this, profile, m_first.people, [&](const Profile& made) { SaveProfile(m_order.people.database, made, replaced); });
    if (editor.exec() == Accepted) {
        Succeeds([&] { Fill(editor.Stored().name); }, [this](const Failure& reason) { Say(reason.Description()); });
    }
}

void FAccountant::Delete()
{
    const KnownProfile known = Chosen();
    if (m_desktop.MessageBox(fmt::format(kDeleteQuestion, known.name), kAccountantTitle, Icon::Question, Buttons::YesNo) != Answer::Yes) {
        return;
    }
    const auto remove = [&] {
        DeleteProfile(m_order.people.database, known);
        Fill("");
    };
    Succeeds(remove, [this](const Failure& reason) { Say(fmt::format(kNotDeleted, reason.Description())); });
}

void FAccountant::Save()
{
    const Profile profile = Chosen().profile.value();
    const auto target = AskWhereToSave(*this, QString::fromStdString(TableFileName(m_order.people.period)), kTableForm);
    if (!target) {
        return;
    }
    std::vector<std::string> notices = m_order.notices;
    const SaveOutcome outcome = SaveAs(target->path, target->form, [&](ReportForm) { return BytesFor(profile, notices); });
    std::string said = outcome.said;
    if (outcome.saved) {
        KeepSettings({{kChosenKey, QString::fromStdString(profile.name)}});
        for (const std::string& notice : notices) {
            said += fmt::format(" {}.", notice);
        }
    }
    Say(said);
}

// The bytes of the table with everybody in it. Adds to `notices` what the user has to know about it.
std::string FAccountant::BytesFor(const Profile& profile, std::vector<std::string>& notices)
{
    PayTableOrder order = m_order.people;
    order.withOverview = NeedsOverview(profile);
    WorkProgress progress(this, {kAccountantTitle, kReadingText});
    const auto all = static_cast<std::int32_t>(order.people.size());
    const auto table = ReadPayTable(order, [&](std::size_t done) { return progress.GoOn(static_cast<std::int32_t>(done), all); });
    if (!table) {
        throw Failure(0, "PTK", kEnded);
    }
    if (!table->missing.empty()) {
        notices.push_back(kIncomplete + table->missing);
    }
    TableFile file = TableFileOf(profile, table->people);
    for (std::string& notice : TableNotices(file)) {
        notices.push_back(std::move(notice));
    }
    return std::move(file.bytes);
}

void FAccountant::Say(const std::string& text)
{
    m_ui->lblHint->Say(QString::fromStdString(text));
}

} // namespace ptk
