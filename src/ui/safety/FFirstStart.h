// The window of somebody who starts the program and has no program folder yet.
#pragma once

#include <memory>
#include <QDialog>
#include <string>

namespace Ui {
class FFirstStart;
}

namespace ptk {

class Clock;

// Nothing is made before Start, and what cannot be made whole is not made: the window then says why and stays.
class FFirstStart final : public QDialog
{
    Q_OBJECT

public:
    // `folder` is where a new business is to be kept; the sample gets a folder beside it.
    FFirstStart(std::string folder, const Clock& clock);
    ~FFirstStart() override;

    // To work in, once the window was accepted.
    [[nodiscard]] const std::string& Folder() const { return m_folder; }

private:
    void EnableChosen();
    void Browse();
    void Begin();

    // Each answers what stands in the way, or raises it; empty when the folder is there.
    std::string BeginNew();
    std::string BeginWithSample();
    std::string UseExisting();

    void BeginWithOld();

    std::unique_ptr<Ui::FFirstStart> m_ui;
    const Clock& m_clock;
    std::string m_folder;
};

} // namespace ptk
