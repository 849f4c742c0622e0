#include "ui/widgets/AiryStyle.h"

#include <QApplication>

namespace ptk {

namespace {

constexpr QSize kAir(16, 2); // pixels, both sides together

} // namespace

AiryStyle::AiryStyle() : QProxyStyle(QApplication::style()->name()) {}

QSize AiryStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const
{
    return QProxyStyle::sizeFromContents(type, option, type == CT_PushButton ? size + kAir : size, widget);
}

} // namespace ptk
