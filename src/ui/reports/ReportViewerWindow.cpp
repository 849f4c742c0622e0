#include "ui/reports/ReportViewerWindow.h"

#include "office/reports/ReportRun.h"
#include "office/reports/SaveReport.h"
#include "platform/Succeeds.h"
#include "reports/Report.h"
#include "ui/widgets/ButtonRow.h"
#include "ui/work/SaveDialog.h"
#include "ui/work/WindowPlace.h"
#include "ui_ReportViewerWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFontDatabase>
#include <QFontInfo>
#include <QPointer>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextDocument>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>

namespace ptk {

namespace {

constexpr auto kNotFound = "Not found";
constexpr auto kNotPrinted = "Not printed";
constexpr auto kCheckPrinter = "Check that a printer is set up and that the report's file is still there.";
constexpr auto kNotOpened = "Not opened";
constexpr auto kCheckViewer = "Check that a program for PDF documents is set up.";

constexpr int kTabWidth = 8;      // characters, the width for which the reports' columns are made
constexpr int kFirstColumns = 84; // the 72 characters of a rule and some space
constexpr int kFirstLines = 44;   // those of a card of fifteen shifts with its signatures; a longer report opens higher
constexpr double kSmallestPoints = 5;
constexpr double kLargestPoints = 48;
constexpr int kCascadeStep = 32; // pixels, about the height of a title bar

QFont ReportFont()
{
    QFont font("Courier New");
    if (QFontInfo(font).family() != font.family()) {
        font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    }
    font.setPointSizeF(QApplication::font().pointSizeF());
    return font;
}

// Whether the window stands on another viewer: within half a step of it, since a window moves by its frame when it is shown.
bool StandsOnAnother(const QWidget& window)
{
    const auto windows = QApplication::topLevelWidgets();
    return std::any_of(windows.begin(), windows.end(), [&](const QWidget* other) {
        return other != &window && other->isVisible() && qobject_cast<const ReportViewerWindow*>(other) != nullptr &&
               (other->pos() - window.pos()).manhattanLength() < kCascadeStep / 2;
    });
}

} // namespace

ReportViewerWindow::ReportViewerWindow(const QString& name) : m_ui(std::make_unique<Ui::ReportViewerWindow>())
{
    m_ui->setupUi(this);
    setObjectName(name);
    LayOutButtons();
    m_ui->pnlFind->hide();
    m_ui->txtReport->viewport()->installEventFilter(this);
    m_ui->txtReport->setFont(ReportFont());
    m_firstPointSize = m_ui->txtReport->font().pointSizeF();
    SetPointSize(m_firstPointSize);
    ConnectControls();
}

ReportViewerWindow::~ReportViewerWindow() = default;

// Lays out the buttons. Where they leave the line beside them too little room, it stands above them.
void ReportViewerWindow::LayOutButtons()
{
    auto* row = new ButtonRow;
    row->setContentsMargins(0, 0, 0, 0);
    {
        const std::unique_ptr<QLayout> before(m_ui->buttons);
        row->TakeFrom(*before);
    }
    m_ui->pnlButtons->setLayout(row);
}

void ReportViewerWindow::ConnectControls()
{
    connect(m_ui->cmdSaveAs, &QPushButton::clicked, this, &ReportViewerWindow::SaveAs);
    connect(m_ui->cmdOpenPdf, &QPushButton::clicked, this, &ReportViewerWindow::OpenPdf);
    connect(m_ui->cmdPrint, &QPushButton::clicked, this, &ReportViewerWindow::Print);
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QWidget::close);
    connect(m_ui->cmdFindNext, &QPushButton::clicked, this, [this] { Find(false); });
    connect(m_ui->cmdFindPrevious, &QPushButton::clicked, this, [this] { Find(true); });
    connect(m_ui->txtFind, &QLineEdit::returnPressed, this, [this] { Find(false); });
    connect(m_ui->txtFind, &QLineEdit::textChanged, m_ui->lblFound, &QLabel::clear);

    const auto onKey = [this](const QKeySequence& key, auto action) {
        connect(new QShortcut(key, this), &QShortcut::activated, this, action);
    };
    const auto zoom = [this](double steps) { SetPointSize(m_ui->txtReport->font().pointSizeF() + steps); };
    onKey(QKeySequence::Print, [this] { Print(); });
    onKey(QKeySequence::Save, [this] { SaveAs(); });
    onKey(QKeySequence::Open, [this] { OpenPdf(); });
    onKey(QKeySequence::Find, [this] { ShowFindBar(true); });
    onKey(QKeySequence::FindNext, [this] { Find(false); });
    onKey(QKeySequence::FindPrevious, [this] { Find(true); });
    onKey(Qt::Key_Escape, [this] { Escape(); });
    onKey(QKeySequence::ZoomIn, [zoom] { zoom(1); });
    onKey(Qt::CTRL | Qt::Key_Equal, [zoom] { zoom(1); }); // the plus key without Shift
    onKey(QKeySequence::ZoomOut, [zoom] { zoom(-1); });
    onKey(Qt::CTRL | Qt::Key_0, [this] { SetPointSize(m_firstPointSize); });
}

void ReportViewerWindow::Caption(const std::string& value)
{
    setWindowTitle(QString::fromStdString(value));
}

bool ReportViewerWindow::WriteLine(const std::string& buffer)
{
    m_lines += buffer;
    m_lines += "\r\n";
    if (isVisible()) {
        ShowText();
    }
    return true;
}

void ReportViewerWindow::ShowText()
{
    const QString text = QString::fromStdString(m_lines);
    m_lines.clear();
    QTextDocument& document = *m_ui->txtReport->document();
    if (document.isEmpty()) {
        m_ui->txtReport->setPlainText(text);
        return;
    }
    QTextCursor end(&document);
    end.movePosition(QTextCursor::End);
    end.insertText(text);
}

void ReportViewerWindow::Show()
{
    ShowText();
    m_ui->txtReport->moveCursor(QTextCursor::Start);
    m_ui->txtReport->verticalScrollBar()->setValue(0);
    m_ui->txtReport->setFocus();
    ShowNotice();
    Place();
    show();
    if (!testAttribute(Qt::WA_ShowWithoutActivating)) {
        BringUp();
    }
}

void ReportViewerWindow::OpenBehind()
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setWindowFlag(Qt::WindowStaysOnBottomHint); // raising another window after each would put that one before the user's other programs
}

// Takes the flag from the system's window, because taking it from the widget would hide the window first.
void ReportViewerWindow::Rise()
{
    setAttribute(Qt::WA_ShowWithoutActivating, false);
    overrideWindowFlags(windowFlags() & ~Qt::WindowStaysOnBottomHint);
    windowHandle()->setFlag(Qt::WindowStaysOnBottomHint, false);
    raise();
}

void ReportViewerWindow::BringUp()
{
    BringForward(*this);
}

// Says what the report has lost: it was made without an error and would otherwise pass for complete.
void ReportViewerWindow::ShowNotice()
{
    if (m_controller != nullptr) {
        Say("");
    }
}

void ReportViewerWindow::Place()
{
    RestorePlace(*this, objectName(), FirstSize());
    m_placed = size();
    const QRect room = RoomFor(*this);
    for (int tries = 0; tries < 100 && StandsOnAnother(*this); ++tries) {
        const QRect next = frameGeometry().translated(kCascadeStep, kCascadeStep);
        move(next.right() > room.right() ? room.left() : next.left(), next.bottom() > room.bottom() ? room.top() : next.top());
    }
}

// The size for the whole report; RestorePlace makes it smaller where the screen is.
QSize ReportViewerWindow::FirstSize() const
{
    const QFontMetrics metrics(m_ui->txtReport->font());
    const int lines = std::max(kFirstLines, m_ui->txtReport->document()->blockCount());
    const int around = m_ui->layout->totalSizeHint().height() - m_ui->txtReport->sizeHint().height();
    const int margins = 2 * static_cast<int>(m_ui->txtReport->document()->documentMargin() + m_ui->txtReport->frameWidth());
    return {kFirstColumns * metrics.horizontalAdvance('0'), lines * metrics.lineSpacing() + margins + around};
}

// Keeps a size that the user has chosen, for all windows of this kind. Otherwise each window fits its own report.
void ReportViewerWindow::Hide()
{
    if (size() != m_placed) {
        StorePlace(*this, objectName());
    }
    hide();
}

void ReportViewerWindow::Unload()
{
    m_controller = nullptr;
    hide();
}

void ReportViewerWindow::closeEvent(QCloseEvent* event)
{
    event->accept();
    LetGo();
}

void ReportViewerWindow::LetGo()
{
    const auto report = std::exchange(m_controller, nullptr);
    if (report == nullptr) {
        return;
    }
    Hide();
    report->UnloadReportWindow();
}

bool ReportViewerWindow::Print()
{
    if (m_controller == nullptr) {
        return false;
    }
    if (!m_controller->PrintReport()) {
        TellRefusal(kNotPrinted, kCheckPrinter);
        return false;
    }
    m_printed = true;
    Hide();
    return true;
}

void ReportViewerWindow::OpenPdf()
{
    if (m_controller == nullptr) {
        return;
    }
    if (m_controller->OpenPages()) {
        Say("");
    } else {
        TellRefusal(kNotOpened, kCheckViewer);
    }
}

void ReportViewerWindow::SaveAs()
{
    const auto report = m_controller; // a copy: the window may be closed while the dialog is open
    if (report == nullptr) {
        return;
    }
    const ReportDocument& document = report->Document();
    const auto save = [&] {
        const auto forms = SavedForms();
        const auto target = AskWhereToSave(*this, QString::fromStdString(FileNameFor(document, forms.front())), forms);
        if (!target) {
            return;
        }
        const SaveOutcome outcome = ptk::SaveAs(target->path, target->form, [&](ReportForm form) {
            return FileOf(form, {&document, 1}, report->Now());
        });
        Say(outcome.said);
        if (!outcome.saved) {
            emit Failed(windowTitle() + ": " + QString::fromStdString(outcome.said));
        }
    };
    Succeeds(save, [this](const Failure& reason) { Say(reason.Description()); });
}

// Says the text, and beside it what is missing from the report.
void ReportViewerWindow::Say(const std::string& text)
{
    const std::string gaps = m_controller == nullptr ? "" : DescribeGaps(m_controller->ErrorNumber(), m_controller->Missing());
    m_ui->lblNotice->Say(QString::fromStdString(text + (text.empty() || gaps.empty() ? "" : " ") + gaps));
}

void ReportViewerWindow::TellRefusal(const char* what, const char* advice)
{
    const std::string reason = m_controller->Refusal();
    Say(reason.empty() ? std::string(what) + ". " + advice : std::string(what) + ": " + reason + ".");
    const QString logged = QString("%1: %2").arg(what, windowTitle());
    emit Failed(reason.empty() ? logged : logged + ": " + QString::fromStdString(reason));
}

void ReportViewerWindow::Escape()
{
    if (m_ui->pnlFind->isVisible()) {
        ShowFindBar(false);
    } else {
        close();
    }
}

void ReportViewerWindow::ShowFindBar(bool shown)
{
    m_ui->pnlFind->setVisible(shown);
    if (!shown) {
        m_ui->txtReport->setFocus();
        return;
    }
    m_ui->txtFind->setFocus();
    m_ui->txtFind->selectAll();
}

// Finds the text after the selection, or before it. At the end of the report it goes on from the other end.
void ReportViewerWindow::Find(bool backward)
{
    const QString text = m_ui->txtFind->text();
    if (text.isEmpty()) {
        return;
    }
    const QTextDocument::FindFlags flags = backward ? QTextDocument::FindBackward : QTextDocument::FindFlags();
    const QTextDocument& document = *m_ui->txtReport->document();
    QTextCursor found = document.find(text, m_ui->txtReport->textCursor(), flags);
    if (found.isNull()) {
        QTextCursor start = m_ui->txtReport->textCursor();
        start.movePosition(backward ? QTextCursor::End : QTextCursor::Start);
        found = document.find(text, start, flags);
    }
    m_ui->lblFound->setText(found.isNull() ? kNotFound : "");
    if (!found.isNull()) {
        m_ui->txtReport->setTextCursor(found);
    }
}

void ReportViewerWindow::SetPointSize(double size)
{
    QFont font = m_ui->txtReport->font();
    font.setPointSizeF(std::clamp(size, kSmallestPoints, kLargestPoints));
    m_ui->txtReport->setFont(font);
    m_ui->txtReport->setTabStopDistance(kTabWidth * QFontMetricsF(font).horizontalAdvance(' '));
}

bool ReportViewerWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel) {
        auto& wheel = static_cast<QWheelEvent&>(*event);
        if (wheel.modifiers().testFlag(Qt::ControlModifier)) {
            SetPointSize(m_ui->txtReport->font().pointSizeF() + wheel.angleDelta().y() / 120.0);
            return true;
        }
    }
    return QMainWindow::eventFilter(watched, event);
}

} // namespace ptk
