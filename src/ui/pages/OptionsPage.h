// The Options page: the length of a pay period and the times of the automatic shift.
#pragma once

#include <memory>
#include <QWidget>

namespace Ui {
class OptionsPage;
}

namespace ptk {

class CSystemOptions;
class PageHost;

class OptionsPage final : public QWidget
{
    Q_OBJECT

public:
    explicit OptionsPage(PageHost& host, QWidget* parent = nullptr);
    ~OptionsPage() override;

    bool DisplaySystemOptions(const std::shared_ptr<CSystemOptions>& options); // false for nullptr
    bool SaveSystemOptions();                                                  // without a message; false also for any failure
    bool RestoreSystemOptions();                                               // shows the controller's options again

private:
    void AlignFrames();
    void ShowExample();
    void Apply();
    void Cancel();

    PageHost& m_host;
    std::unique_ptr<Ui::OptionsPage> m_ui;
};

} // namespace ptk
