// The base of windows that import a file. They first show what the import would do, then import when the user wants that.
#pragma once

#include "platform/GoesOn.h"

#include <optional>
#include <QDialog>
#include <string>
#include <vector>

class QLineEdit;
class QPlainTextEdit;
class QPushButton;

namespace ptk {

class HintLabel;

// Shows every failure itself and then stays open for another try.
class ImportWindow : public QDialog
{
protected:
    struct Words
    {
        const char* fileTitle;
        const char* filter;
        const char* progressTitle;
        const char* progressText;
        const char* refused; // a sentence with %1 for the reason
        const char* nameFirst;
    };

    struct Parts
    {
        QWidget* file; // holds all that says which file, and how it is to be read
        QLineEdit* name;
        QPushButton* browse;
        QPlainTextEdit* account;
        HintLabel* hint;
        QPushButton* read;
        QPushButton* import;
        QPushButton* cancel;
    };

    ImportWindow(QWidget* parent, const Words& words) : QDialog(parent), m_words(words) {}

    // Connects the controls, which belong to the window. To be called once, as soon as they are there.
    void Begin(const Parts& parts, QSize first, QSize smallest);

    // Empties all that was read. To be called when another file is named, or this one is to be read in another way.
    void Forget();

    void TellRefused(const std::string& reason);

    // Shows these lines as the account, the first `most` of them where there are more.
    void ShowAccount(const std::vector<std::string>& lines, std::size_t most);

    // Hides the buttons, the parts that name the file, and `others`. To be called once nothing is left to do but to close the window.
    void HideAllDone(const std::vector<QWidget*>& others);

    // Makes Import the default button and gives it the keyboard where it is enabled.
    void OfferImport();

private:
    // Forgets what was read, because it does not belong to what the window shows any more.
    virtual void ForgetRead() = 0;

    // Reads the file; imports it unless this is a trial. Raises a failure that says why the file is refused.
    virtual void Work(bool trial, const GoesOn& goesOn) = 0;

    virtual void ShowOutcome(bool trial) = 0;

    void Browse();
    void Try(bool trial);

    Words m_words;
    std::optional<Parts> m_parts; // from Begin on
};

} // namespace ptk
