// The quiet line at the left of a page's buttons: what was just done, or what could not be, and sometimes a way back.
#pragma once

#include <functional>
#include <QWidget>

class QToolButton;

namespace ptk {

class ElidedLabel;

// Empty at first. Each text replaces the last one and is announced to assistive tools; it stays until the page says something else. What
// does not fit ends in dots and stands whole in the tool tip.
class NoticeLine final : public QWidget
{
    Q_OBJECT

public:
    explicit NoticeLine(QWidget* parent = nullptr);

    void Say(const QString& text);

    // The same of a text that ends in the name of a file: what does not fit is left out in its middle.
    void SayFile(const QString& text);

    // Says it, unless something is being offered.
    void Remark(const QString& text);

    // Says it, with a button beside it that runs `action` once; the line is empty again by the time it runs.
    void Offer(const QString& text, const QString& caption, std::function<void()> action);

    // The same of what is merely handy: it gives way to all that the page says next.
    void Suggest(const QString& text, const QString& caption, std::function<void()> action);

    // Says it before the words of what is being offered, which stays; as Say where nothing is.
    void SayBefore(const QString& text);

    [[nodiscard]] bool IsOffering() const { return m_action != nullptr && !m_suggests; }

    void Clear();
    [[nodiscard]] QString Text() const;

private:
    void Show(const QString& text);
    void Act();

    ElidedLabel* m_text;   // lblNotice; both belong to the widget
    QToolButton* m_button; // cmdNotice, hidden unless something is offered
    std::function<void()> m_action;
    bool m_suggests = false; // the action
};

} // namespace ptk
