#include "ui/widgets/AiryStyle.h"

#include <QApplication>

namespace ptk {

namespace {

constexpr QSize kAir(16, 2);      // pixels, both sides together
constexpr double kHintText = 0.6; // share of the text's colour in a hint's, the rest is the background: above 4.5:1, on a window, too

QColor Blend(const QColor& one, const QColor& other, double share)
{
    const auto mix = [share](double a, double b) { return static_cast<float>(share * a + (1 - share) * b); };
    return QColor::fromRgbF(mix(one.redF(), other.redF()), mix(one.greenF(), other.greenF()), mix(one.blueF(), other.blueF()));
}

} // namespace

AiryStyle::AiryStyle() : QProxyStyle(QApplication::style()->name()) {}

void AiryStyle::polish(QPalette& palette)
{
    QProxyStyle::polish(palette);
    for (const auto group : {QPalette::Active, QPalette::Inactive}) {
        const QColor hint = Blend(palette.color(group, QPalette::Text), palette.color(group, QPalette::Base), kHintText);
        palette.setColor(group, QPalette::PlaceholderText, hint);
    }
}

QSize AiryStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const
{
    return QProxyStyle::sizeFromContents(type, option, type == CT_PushButton ? size + kAir : size, widget);
}

} // namespace ptk
