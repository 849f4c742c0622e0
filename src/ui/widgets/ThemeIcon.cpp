#include "ui/widgets/ThemeIcon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QSvgRenderer>

// Stands outside any namespace, as its macro requires. The icons live in a static library, so nothing else initialises them.
static void LoadIcons()
{
    Q_INIT_RESOURCE(icons);
}

namespace ptk {

namespace {

class ThemeIconEngine final : public QIconEngine
{
public:
    explicit ThemeIconEngine(QString name) : m_name(std::move(name)) {}

    void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override
    {
        const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
        const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText;
        QSvgRenderer renderer(Drawing(QGuiApplication::palette().color(group, role)));
        renderer.render(painter, rect);
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(0, 0), size), mode, state);
        return pixmap;
    }

    QIconEngine* clone() const override { return new ThemeIconEngine(m_name); }

private:
    QByteArray Drawing(const QColor& color) const
    {
        QFile file(":/icons/" + m_name + ".svg");
        if (!file.open(QIODevice::ReadOnly)) {
            return {};
        }
        return file.readAll().replace("currentColor", color.name().toUtf8());
    }

    QString m_name;
};

} // namespace

QIcon ThemeIcon(const QString& name)
{
    LoadIcons();
    return QIcon(new ThemeIconEngine(name));
}

} // namespace ptk
