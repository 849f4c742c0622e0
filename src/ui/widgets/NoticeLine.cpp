#include "ui/widgets/NoticeLine.h"

#include "ui/widgets/ElidedLabel.h"
#include "ui/widgets/Spoken.h"

#include <QHBoxLayout>
#include <QToolButton>
#include <utility>

namespace ptk {

NoticeLine::NoticeLine(QWidget* parent) : QWidget(parent), m_text(new ElidedLabel(QString(), this)), m_button(new QToolButton(this))
{
    m_text->setObjectName("lblNotice");
    MakeMessage(*m_text);
    m_button->setObjectName("cmdNotice");
    m_button->hide();
    auto* line = new QHBoxLayout(this);
    line->setContentsMargins(0, 0, 0, 0);
    line->addWidget(m_text, 1);
    line->addWidget(m_button);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    connect(m_button, &QToolButton::clicked, this, &NoticeLine::Act);
}

void NoticeLine::Say(const QString& text)
{
    m_action = nullptr;
    m_button->hide();
    Show(text);
}

void NoticeLine::SayFile(const QString& text)
{
    Say(text);
    m_text->Cut(Qt::ElideMiddle);
}

void NoticeLine::Remark(const QString& text)
{
    if (!IsOffering()) {
        Say(text);
    }
}

void NoticeLine::SayBefore(const QString& text)
{
    if (!IsOffering()) {
        return Say(text);
    }
    Show(Text().isEmpty() ? text : text + ". " + Text());
}

void NoticeLine::Suggest(const QString& text, const QString& caption, std::function<void()> action)
{
    Offer(text, caption, std::move(action));
    m_suggests = true;
}

void NoticeLine::Offer(const QString& text, const QString& caption, std::function<void()> action)
{
    m_suggests = false;
    m_action = std::move(action);
    m_button->setText(caption);
    m_button->show();
    Show(text);
}

void NoticeLine::Clear()
{
    Say(QString());
}

QString NoticeLine::Text() const
{
    return m_text->text();
}

void NoticeLine::Show(const QString& text)
{
    m_text->Cut(Qt::ElideRight);
    m_text->setText(text);
    TellAloud(*m_text);
}

// Empties the line before it runs the action, which may say something of its own.
void NoticeLine::Act()
{
    const auto action = std::exchange(m_action, nullptr);
    Clear();
    if (action) {
        action();
    }
}

} // namespace ptk
