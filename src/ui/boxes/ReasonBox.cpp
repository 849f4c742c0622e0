#include "ui/boxes/ReasonBox.h"

#include "platform/system/Desktop.h"

#include <QLabel>
#include <QLineEdit>

namespace ptk {

namespace {

constexpr auto kReasonCaption = "&Reason";
constexpr auto kReasonName = "Reason";
constexpr auto kOptional = "why, if it is worth telling";
constexpr auto kAskedFor = "why it is changed after it was paid";
constexpr int kLongestReason = 200;   // characters, so that it can be read in the history
constexpr int kReasonCharacters = 24; // characters that can be seen at the least

} // namespace

ReasonBox::ReasonBox(QWidget* parent) : QComboBox(parent)
{
    setObjectName("cboReason");
    setAccessibleName(kReasonName);
    setEditable(true);
    setInsertPolicy(QComboBox::NoInsert);
    setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(kReasonCharacters);
    lineEdit()->setMaxLength(kLongestReason);
    lineEdit()->setPlaceholderText(kOptional);
    setCompleter(nullptr); // a completer would write what it proposes into the text
}

void ReasonBox::Offer(const ReasonLine& line)
{
    m_wanted = line.wanted;
    clear();
    for (const std::string& reason : line.offered) {
        addItem(QString::fromStdString(reason));
    }
    setCurrentIndex(-1);
    setEditText(QString::fromStdString(line.reason));
    lineEdit()->setPlaceholderText(m_wanted ? kAskedFor : kOptional);
}

std::string ReasonBox::Reason() const
{
    return currentText().trimmed().toStdString();
}

bool ReasonBox::AsksForIt()
{
    const bool asks = m_wanted && !m_asked && Reason().empty();
    if (asks) {
        m_asked = true;
        setFocus();
    }
    return asks;
}

QLabel* ReasonBox::NewLabel()
{
    auto* label = new QLabel(kReasonCaption, parentWidget());
    label->setBuddy(this);
    return label;
}

} // namespace ptk
