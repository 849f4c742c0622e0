// The platform's style with a little room around the text of its buttons.
#pragma once

#include <QProxyStyle>

namespace ptk {

class AiryStyle final : public QProxyStyle
{
    Q_OBJECT

public:
    // Builds on the style that the application has at present.
    AiryStyle();

    // Gives hints more contrast, so that they can be read.
    void polish(QPalette& palette) override;
    using QProxyStyle::polish;

    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const override;
};

} // namespace ptk
