// The frame of windows that bring a file along: first what would become of it, then, when the user wants it, the import.
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

// Tells all that goes wrong itself, and then stays for another try.
class ImportWindow : public QDialog
{
protected:
    struct Words
    {
        const char* fileTitle;
        const char* filter;
        const char* progressTitle;
        const char* progressText;
        const char* refused; // with %1 for the reason
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

    // Once the controls are there, which belong to the window.
    void Begin(const Parts& parts, QSize first, QSize smallest);

    // Of another file, or of this one read in another way.
    void Forget();

    void TellRefused(const std::string& reason);

    // Of more than `most` lines the first ones.
    void ShowAccount(const std::vector<std::string>& lines, std::size_t most);

    // Once nothing is left to be done but to close the window.
    void HideAllDone(const std::vector<QWidget*>& others);

    // With the keyboard in it, where it can be pressed.
    void OfferImport();

private:
    // What was read is none of what the window shows any more.
    virtual void ForgetRead() = 0;

    // Raises why the file is refused.
    virtual void Work(bool trial, const GoesOn& goesOn) = 0;

    virtual void ShowOutcome(bool trial) = 0;

    void Browse();
    void Try(bool trial);

    Words m_words;
    std::optional<Parts> m_parts; // from Begin on
};

} // namespace ptk
