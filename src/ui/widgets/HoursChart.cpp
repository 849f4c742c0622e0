#include "ui/widgets/HoursChart.h"

#include <algorithm>
#include <array>
#include <QAbstractListModel>
#include <QEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>

namespace ptk {

namespace {

constexpr auto kChartName = "Hours per day";
constexpr auto kLegendText = "Bars: regular hours filled, overtime hatched, a line at 8 hours; work weeks with all their days";
constexpr std::array<const char*, 3> kLegend{"Regular", "Overtime", "8 hours"};

constexpr std::int64_t kLineMinutes = 480;
constexpr std::int64_t kLeastTop = 600; // minutes that the scale covers at least
constexpr auto kWideWeek = "100.00";
constexpr int kBarsHeight = 40; // pixels
constexpr int kLowBarsHeight = 24;
constexpr int kTallWindow = 760; // pixels; in a lower window the rows of the card need the room
constexpr int kBarSpace = 4;     // pixels at each side of a bar
constexpr int kTextSpace = 2;
constexpr int kLeastColumn = 26;
constexpr int kMostColumn = 64;
constexpr int kSwatch = 12;
constexpr int kLegendSpace = 6;

enum class Part
{
    Regular,
    Overtime,
    Line
};

// Paints a part in the colours of the palette, without a background behind the hatching.
void PaintPart(QPainter& painter, const QRect& place, Part part, const QPalette& palette)
{
    const QColor ink = palette.color(QPalette::Text);
    painter.save();
    if (part == Part::Line) {
        painter.setPen(QPen(ink, 1, Qt::DashLine));
        painter.drawLine(place.left(), place.center().y(), place.right(), place.center().y());
    } else if (!place.isEmpty()) {
        painter.setPen(ink);
        painter.setBrush(part == Part::Regular ? QBrush(palette.color(QPalette::Highlight)) : QBrush(ink, Qt::BDiagPattern));
        painter.drawRect(place.adjusted(0, 0, -1, -1));
    }
    painter.restore();
}

class ColumnsModel final : public QAbstractListModel
{
public:
    using QAbstractListModel::QAbstractListModel;

    void SetColumns(std::vector<HoursColumn> columns)
    {
        beginResetModel();
        m_columns = std::move(columns);
        m_top = kLeastTop;
        m_weeks = 0;
        for (const HoursColumn& column : m_columns) {
            m_weeks += column.isWeek ? 1 : 0;
            m_top = std::max(m_top, column.regular + column.overtime);
        }
        endResetModel();
    }

    const HoursColumn& Column(int row) const { return m_columns.at(static_cast<std::size_t>(row)); }
    std::int64_t Top() const { return m_top; } // in minutes: what a bar of full height stands for
    int Weeks() const { return m_weeks; }

    int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : static_cast<int>(m_columns.size()); }

    QVariant data(const QModelIndex& index, int role) const override
    {
        const bool inWords = role == Qt::ToolTipRole || role == Qt::AccessibleTextRole || role == Qt::DisplayRole;
        return inWords ? QVariant(QString::fromStdString(Column(index.row()).text)) : QVariant();
    }

private:
    std::vector<HoursColumn> m_columns;
    std::int64_t m_top = kLeastTop;
    int m_weeks = 0;
};

class ColumnPainter final : public QStyledItemDelegate
{
public:
    ColumnPainter(const ColumnsModel& model, QListView& view) : QStyledItemDelegate(&view), m_model(model), m_view(view) {}

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return {ColumnWidth(option.font, m_model.Column(index.row()).isWeek), ColumnHeight(option.fontMetrics)};
    }

    // The width of a column: weeks keep enough room for their figures, and the days share the rest.
    int ColumnWidth(const QFont& font, bool isWeek) const
    {
        const int room = m_view.width() - 2 * m_view.frameWidth();
        const int share = room / std::max(m_model.rowCount(), 1);
        const int week = WeekWidth(font);
        if (share >= week) {
            return std::min(share, kMostColumn);
        }
        const int days = std::max(m_model.rowCount() - m_model.Weeks(), 1);
        return isWeek ? week : std::max((room - m_model.Weeks() * week) / days, kLeastColumn);
    }

    bool NeedsScrolling(const QFont& font) const
    {
        const int weeks = m_model.Weeks();
        const int width = weeks * ColumnWidth(font, true) + (m_model.rowCount() - weeks) * ColumnWidth(font, false);
        return width > m_view.width() - 2 * m_view.frameWidth();
    }

    int ColumnHeight(const QFontMetrics& metrics) const { return BarsHeight() + 3 * metrics.lineSpacing() + 2 * kTextSpace; }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const HoursColumn& column = m_model.Column(index.row());
        const QRect& place = option.rect;
        const int line = option.fontMetrics.lineSpacing();
        if (column.isWeek) {
            painter->fillRect(place, option.palette.alternateBase());
        } else {
            PaintBars(*painter, QRect(place.left(), place.top() + line + kTextSpace, place.width(), BarsHeight()), column, option.palette);
        }
        const int names = place.bottom() + 1 - 2 * line - kTextSpace;
        PaintFigure(*painter, option, QRect(place.left(), FigureTop(place, line, column), place.width(), line), column);
        PaintText(*painter, option, QRect(place.left(), names, place.width(), line), QString::fromStdString(column.name), false);
        const QRect below(place.left(), names + line, place.width(), line);
        const QString day = QString::fromStdString(column.day);
        if (!PaintText(*painter, option, below, day, false)) {
            PaintText(*painter, option, below, day.section('/', 1), false); // the day of the month alone
        }
        if (option.state.testFlag(QStyle::State_Selected)) {
            painter->setPen(QPen(option.palette.color(QPalette::Highlight), 2));
            painter->drawRect(place.adjusted(1, 1, -1, -1));
        }
    }

private:
    static int WeekWidth(QFont font)
    {
        font.setBold(true);
        return QFontMetrics(font).horizontalAdvance(kWideWeek) + kBarSpace;
    }

    int BarsHeight() const { return m_view.window()->height() < kTallWindow ? kLowBarsHeight : kBarsHeight; }
    int Height(std::int64_t minutes) const { return static_cast<int>(minutes * BarsHeight() / m_model.Top()); }

    // The top of a column's figure: above the bar, or in the middle of a week's column.
    int FigureTop(const QRect& place, int line, const HoursColumn& column) const
    {
        const int bar = column.isWeek ? (BarsHeight() - line) / 2 : Height(column.regular + column.overtime);
        return place.top() + BarsHeight() - bar;
    }

    void PaintBars(QPainter& painter, const QRect& place, const HoursColumn& column, const QPalette& palette) const
    {
        const int regular = Height(column.regular);
        const int overtime = Height(column.regular + column.overtime) - regular;
        const int floor = place.bottom() + 1;
        const int left = place.left() + kBarSpace;
        const int width = place.width() - 2 * kBarSpace;
        PaintPart(painter, QRect(left, floor - regular, width, regular), Part::Regular, palette);
        PaintPart(painter, QRect(left, floor - regular - overtime, width, overtime), Part::Overtime, palette);
        PaintPart(painter, QRect(place.left(), floor - Height(kLineMinutes), place.width(), 1), Part::Line, palette);
    }

    // Clears the background of a day's figure first, because the line at 8 hours may pass there and must not strike it through.
    static void PaintFigure(QPainter& painter, const QStyleOptionViewItem& option, const QRect& place, const HoursColumn& column)
    {
        const QString figure = QString::fromStdString(column.above);
        const int width = option.fontMetrics.horizontalAdvance(figure);
        if (!column.isWeek && width <= place.width()) {
            painter.fillRect(QRect(place.left() + (place.width() - width) / 2, place.top(), width, place.height()), option.palette.base());
        }
        PaintText(painter, option, place, figure, column.isWeek);
    }

    // False, and nothing painted, where the column is too narrow for the text, which then stands in the column's words only.
    static bool PaintText(QPainter& painter, const QStyleOptionViewItem& option, const QRect& place, const QString& text, bool bold)
    {
        QFont font = option.font;
        font.setBold(bold);
        if (QFontMetrics(font).horizontalAdvance(text) > place.width()) {
            return false;
        }
        painter.setFont(font);
        painter.setPen(option.palette.color(QPalette::Text));
        painter.drawText(place, Qt::AlignCenter, text);
        return true;
    }

    const ColumnsModel& m_model;
    QListView& m_view;
};

} // namespace

HoursChart::HoursChart(QWidget* parent) : QListView(parent)
{
    auto* columns = new ColumnsModel(this);
    setModel(columns);
    setItemDelegate(new ColumnPainter(*columns, *this));
    setAccessibleName(kChartName);
    setAccessibleDescription(kLegendText);
    setFlow(QListView::LeftToRight);
    setWrapping(false);
    setResizeMode(QListView::Adjust);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setTabKeyNavigation(false);
    FitHeight();
}

void HoursChart::Show(std::vector<HoursColumn> columns)
{
    static_cast<ColumnsModel*>(model())->SetColumns(std::move(columns));
    FitHeight();
}

void HoursChart::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    if (model()->rowCount() == 0) {
        QPainter painter(viewport());
        painter.setPen(palette().color(QPalette::PlaceholderText));
        painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, m_hint);
    }
}

void HoursChart::FitHeight()
{
    const auto& painter = static_cast<const ColumnPainter&>(*itemDelegate());
    setFixedHeight(painter.ColumnHeight(fontMetrics()) + 2 * frameWidth() +
                   (painter.NeedsScrolling(font()) ? horizontalScrollBar()->sizeHint().height() : 0));
}

void HoursChart::resizeEvent(QResizeEvent* event)
{
    scheduleDelayedItemsLayout();
    QListView::resizeEvent(event);
    FitHeight();
}

void HoursChart::showEvent(QShowEvent* event)
{
    QListView::showEvent(event);
    window()->installEventFilter(this);
    FitHeight();
}

// Follows the height of the window, on which that of the bars depends; the view itself gets no event for it.
bool HoursChart::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == window() && event->type() == QEvent::Resize) {
        scheduleDelayedItemsLayout();
        FitHeight();
    }
    return QListView::eventFilter(watched, event);
}

void HoursChart::changeEvent(QEvent* event)
{
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
        FitHeight();
    }
}

HoursLegend::HoursLegend(QWidget* parent) : QWidget(parent)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

QSize HoursLegend::sizeHint() const
{
    int width = 0;
    for (const char* text : kLegend) {
        width += kSwatch + 3 * kLegendSpace + fontMetrics().horizontalAdvance(text);
    }
    return {width, std::max(fontMetrics().lineSpacing(), kSwatch)};
}

QSize HoursLegend::minimumSizeHint() const
{
    return sizeHint();
}

void HoursLegend::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    int left = 0;
    for (std::size_t i = 0; i < kLegend.size(); ++i) {
        PaintPart(painter, QRect(left, (height() - kSwatch) / 2, kSwatch, kSwatch), static_cast<Part>(i), palette());
        left += kSwatch + kLegendSpace;
        const int width = fontMetrics().horizontalAdvance(kLegend.at(i));
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(QRect(left, 0, width, height()), Qt::AlignVCenter, kLegend.at(i));
        left += width + 2 * kLegendSpace;
    }
}

} // namespace ptk
