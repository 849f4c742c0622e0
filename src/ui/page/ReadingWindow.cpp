#include "ui/page/ReadingWindow.h"

#include "office/card/CardTexts.h"
#include "ui/page/Workplace.h"
#include "ui/widgets/NoticeLine.h"
#include "ui/widgets/ThemeIcon.h"
#include "ui/work/SaveDialog.h"
#include "ui/work/WindowPlace.h"

#include <QClipboard>
#include <QCloseEvent>
#include <QGuiApplication>
#include <QShortcut>
#include <QTableView>
#include <utility>

namespace ptk {

namespace {

constexpr auto kCopied = "Copied: %1 and a heading";
constexpr QSize kSmallestSize(512, 350); // as the main window's

} // namespace

ReadingWindow::ReadingWindow(Workplace& host, QString place) : m_host(host), m_place(std::move(place)) {}

void ReadingWindow::Furnish(NoticeLine& line, const QString& icon, QSize firstSize)
{
    m_line = &line;
    setMinimumSize(kSmallestSize);
    setWindowIcon(ThemeIcon(icon));
    RestorePlace(*this, m_place, firstSize);
}

void ReadingWindow::OnKey(const QKeySequence& key, const std::function<void()>& action)
{
    connect(new QShortcut(key, this), &QShortcut::activated, this, action);
}

void ReadingWindow::OnRoom(const QTableView& table, std::function<void()> action)
{
    m_onRoom = std::move(action);
    table.viewport()->installEventFilter(this);
}

bool ReadingWindow::ShowInFront()
{
    const bool wasOpen = isVisible();
    show();
    BringForward(*this);
    return wasOpen;
}

void ReadingWindow::Say(const QString& text)
{
    m_line->Say(text);
}

void ReadingWindow::Complain(const std::string& line)
{
    Say(QString::fromStdString(line));
    m_host.Log(line);
}

void ReadingWindow::CopyRows(const std::string& text, std::size_t rows, const std::string& thing)
{
    QGuiApplication::clipboard()->setText(QString::fromStdString(text));
    Say(QString(kCopied).arg(QString::fromStdString(CountText(static_cast<std::int64_t>(rows), thing))));
}

void ReadingWindow::SaveUnder(const std::string& name, std::span<const ReportForm> forms, const MakeFile& make)
{
    const auto target = AskWhereToSave(*this, QString::fromStdString(name), forms);
    if (!target) {
        return;
    }
    const SaveOutcome outcome = SaveAs(target->path, target->form, make);
    const auto said = QString::fromStdString(outcome.said);
    outcome.saved ? m_line->SayFile(said) : m_line->Say(said);
}

void ReadingWindow::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::ActivationChange && isActiveWindow()) {
        QMetaObject::invokeMethod(
            this, [this] { Activated(); }, Qt::QueuedConnection);
    }
    QWidget::changeEvent(event);
}

void ReadingWindow::closeEvent(QCloseEvent* event)
{
    End();
    StorePlace(*this, m_place);
    event->accept();
}

bool ReadingWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize) {
        m_onRoom();
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace ptk
