#include "ui/safety/FFirstStart.h"

#include "office/business/NewBusiness.h"
#include "platform/Failure.h"
#include "platform/files/ProgramFolder.h"
#include "platform/Succeeds.h"
#include "platform/system/Clock.h"
#include "ui/safety/FImport.h"
#include "ui_FFirstStart.h"

#include <QFileDialog>
#include <utility>

namespace ptk {

namespace {

constexpr auto kWelcome = "There is no business on this computer yet. A new one is kept in %1.";
constexpr auto kWithoutConfiguration = "%1 has no configuration (system/ptk_11.cfg). Choose where to work.";
constexpr auto kFolderTitle = "Existing Program Folder";
constexpr auto kSampleEnding = "-sample";
constexpr auto kFirstPerson = "administrator"; // nobody has logged in yet
constexpr auto kProgram = "ptk-admin";
constexpr auto kNotMade = "It could not be begun: ";

constexpr int kHintLines = 2;
constexpr int kFirstWidth = 520; // pixels
constexpr int kSmallestWidth = 420;

} // namespace

FFirstStart::FFirstStart(std::string folder, const Clock& clock)
    : m_ui(std::make_unique<Ui::FFirstStart>()), m_clock(clock), m_folder(std::move(folder))
{
    m_ui->setupUi(this);
    setMinimumWidth(kSmallestWidth);
    resize(kFirstWidth, sizeHint().height());
    const bool there = QFileInfo::exists(QString::fromStdString(m_folder));
    m_ui->lblWelcome->setText(QString(there ? kWithoutConfiguration : kWelcome).arg(QString::fromStdString(m_folder)));
    m_ui->lblHint->KeepRoom(kHintLines);
    for (const QRadioButton* choice : {m_ui->optNew, m_ui->optSample, m_ui->optImport, m_ui->optFolder}) {
        connect(choice, &QRadioButton::toggled, this, &FFirstStart::EnableChosen);
    }
    connect(m_ui->cmdBrowse, &QPushButton::clicked, this, &FFirstStart::Browse);
    connect(m_ui->cmdStart, &QPushButton::clicked, this, &FFirstStart::Begin);
    connect(m_ui->cmdQuit, &QPushButton::clicked, this, &FFirstStart::reject);
    m_ui->txtCompany->setFocus();
}

FFirstStart::~FFirstStart() = default;

void FFirstStart::EnableChosen()
{
    m_ui->fraNew->setEnabled(m_ui->optNew->isChecked());
    m_ui->fraFolder->setEnabled(m_ui->optFolder->isChecked());
    m_ui->lblHint->Say(QString());
}

void FFirstStart::Browse()
{
    const QString folder = QFileDialog::getExistingDirectory(this, kFolderTitle, m_ui->txtFolder->text());
    if (!folder.isEmpty()) {
        m_ui->txtFolder->setText(folder);
    }
}

void FFirstStart::Begin()
{
    if (m_ui->optImport->isChecked()) {
        return BeginWithOld();
    }
    std::string problem;
    const auto begin = [&] {
        if (m_ui->optNew->isChecked()) {
            problem = BeginNew();
        } else {
            problem = m_ui->optSample->isChecked() ? BeginWithSample() : UseExisting();
        }
    };
    Succeeds(begin, [&](const Failure& reason) { problem = kNotMade + reason.Description() + '.'; });
    if (problem.empty()) {
        return accept();
    }
    m_ui->lblHint->Say(QString::fromStdString(problem));
}

std::string FFirstStart::BeginNew()
{
    const NewBusiness business{m_ui->txtCompany->text().toStdString(), m_ui->txtFirstName->text().toStdString(),
                               m_ui->txtLastName->text().toStdString(), m_ui->txtPassword->text().toStdString(),
                               m_ui->txtRepeated->text().toStdString()};
    std::string refusal = BusinessRefusal(business);
    if (refusal.empty()) {
        BeginBusiness(m_folder, business);
    }
    return refusal;
}

// A sample that was made at an earlier start is used again as it is.
std::string FFirstStart::BeginWithSample()
{
    const std::string folder = m_folder + kSampleEnding;
    if (!HoldsConfiguration(folder)) {
        BeginSample(folder, m_clock.Today());
    }
    m_folder = folder;
    return {};
}

std::string FFirstStart::UseExisting()
{
    const std::string folder = m_ui->txtFolder->text().toStdString();
    std::string refusal = FolderRefusal(folder);
    if (refusal.empty()) {
        RememberProgramFolder(folder);
        m_folder = folder;
    }
    return refusal;
}

// FImport asks for the file, shows what is in it and tells what went wrong.
void FFirstStart::BeginWithOld()
{
    const auto import = [this](ImportOrder order, const ImportProgress& progress) {
        order.now = m_clock.Now();
        order.author = {kFirstPerson, kProgram};
        return BeginWithOldDatabase(m_folder, std::move(order), progress);
    };
    FImport window(this, import);
    window.exec();
    if (window.HasImported()) {
        accept();
    }
}

} // namespace ptk
