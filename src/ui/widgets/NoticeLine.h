// The quiet line at the left of a page's buttons: it says what was done or could not be done, and may have a button for what comes next.
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

    // Says a text that ends in the name of a file: what does not fit is left out in the middle.
    void SayFile(const QString& text);

    // Says the text, unless something is being offered; the offer then stays.
    void Remark(const QString& text);

    // Says the text, with a button beside it that runs `action` once; the line is already empty when it runs.
    void Offer(const QString& text, const QString& caption, std::function<void()> action);

    // Offers something that is merely handy: the offer gives way to all that the page says next.
    void Suggest(const QString& text, const QString& caption, std::function<void()> action);

    // Says the text before the words of an offer, which stays; where nothing is offered it does what Say does.
    void SayBefore(const QString& text);

    [[nodiscard]] bool IsOffering() const { return m_action != nullptr && !m_suggests; }

    void Clear();
    [[nodiscard]] QString Text() const;

private:
    void Show(const QString& text);
    void Act();

    ElidedLabel* m_text;   // lblNotice; this and the button belong to the widget
    QToolButton* m_button; // cmdNotice, hidden unless something is offered
    std::function<void()> m_action;
    bool m_suggests = false; // the action is a suggestion
};

} // namespace ptk
