// The window for the first start of the program, when there is no program folder with a configuration yet.
#pragma once

#include <memory>
#include <QDialog>
#include <string>

namespace Ui {
class FFirstStart;
}

namespace ptk {

class Clock;

// Makes nothing before Start is pressed. What cannot be made whole is not made at all: then the window says why and stays open.
class FFirstStart final : public QDialog
{
    Q_OBJECT

public:
    // `folder` is where a new business is to be kept; the sample gets a folder beside it.
    FFirstStart(std::string folder, const Clock& clock);
    ~FFirstStart() override;

    // The program folder to work in, once the window was accepted.
    [[nodiscard]] const std::string& Folder() const { return m_folder; }

private:
    void EnableChosen();
    void Browse();
    void Begin();

    // Each of these three answers what stands in the way, or raises it as a failure; empty when the program folder is ready.
    std::string BeginNew();
    std::string BeginWithSample();
    std::string UseExisting();

    void BeginWithOld();

    std::unique_ptr<Ui::FFirstStart> m_ui;
    const Clock& m_clock;
    std::string m_folder;
};

} // namespace ptk
