#include "ui/safety/FImport.h"

#include "ui_FImport.h"

#include <limits>

namespace ptk {

namespace {

constexpr auto kRead = "This is what can be brought along. Nothing has been written yet.";
constexpr auto kDamaged = "The file shows signs of damage; they stand at the end. Nothing has been written yet.";
constexpr auto kImported = "Imported. The account is kept as %1.";
constexpr auto kImportedBut = "Imported, but %1.";

constexpr auto kReadFirst = "Choose the older database and read it first.";
constexpr auto kAcceptFirst = "Tick that what can still be read is to be taken.";

constexpr QSize kFirstSize(640, 480);
constexpr QSize kSmallestSize(420, 300);

} // namespace

FImport::FImport(QWidget* parent, Importer importer)
    : ImportWindow(parent, {.fileTitle = "Older Database",
                            .filter = "Databases (*.mdb);;All Files (*)",
                            .progressTitle = "Import Older Database",
                            .progressText = "Reading the older database...",
                            .refused = "Nothing was changed: %1.",
                            .nameFirst = "Choose the older database first."}),
      m_ui(std::make_unique<Ui::FImport>()), m_importer(std::move(importer))
{
    m_ui->setupUi(this);
    m_ui->chkAccept->hide();
    Begin({m_ui->fraFile, m_ui->txtFile, m_ui->cmdBrowse, m_ui->txtAccount, m_ui->lblHint, m_ui->cmdRead, m_ui->cmdImport, m_ui->cmdCancel},
          kFirstSize, kSmallestSize);
    connect(m_ui->chkAccept, &QCheckBox::toggled, this, &FImport::EnableImport);
    Forget();
}

FImport::~FImport() = default;

void FImport::ForgetRead()
{
    m_read = false;
    m_damaged = false;
    m_ui->chkAccept->setChecked(false);
    m_ui->chkAccept->hide();
    EnableImport();
}

void FImport::Work(bool trial, const GoesOn& goesOn)
{
    ImportOrder order;
    order.file = m_ui->txtFile->text().toStdString();
    order.trial = trial;
    order.acceptDamaged = m_ui->chkAccept->isChecked();
    m_outcome = m_importer(order, [&goesOn](std::int64_t) { return goesOn(); });
}

void FImport::ShowOutcome(bool trial)
{
    ShowAccount(AccountLines(m_outcome.account), std::numeric_limits<std::size_t>::max());
    trial ? ShowRead() : ShowImported();
}

void FImport::ShowRead()
{
    m_read = true;
    m_damaged = !m_outcome.account.signs.empty();
    m_ui->chkAccept->setVisible(m_damaged);
    m_ui->lblHint->Say(m_damaged ? kDamaged : kRead);
    EnableImport();
    OfferImport();
}

void FImport::ShowImported()
{
    if (!m_outcome.refusal.empty()) { // the file has changed since it was read
        return TellRefused(m_outcome.refusal);
    }
    m_imported = true;
    const bool whole = m_outcome.problem.empty();
    m_ui->lblHint->Say(
        QString(whole ? kImported : kImportedBut).arg(QString::fromStdString(whole ? m_outcome.accountFile : m_outcome.problem)));
    HideAllDone({m_ui->chkAccept});
}

void FImport::EnableImport()
{
    const bool accepted = !m_damaged || m_ui->chkAccept->isChecked();
    m_ui->cmdImport->setEnabled(m_read && accepted);
    m_ui->cmdImport->setToolTip(!m_read ? kReadFirst : (accepted ? QString() : kAcceptFirst));
}

} // namespace ptk
