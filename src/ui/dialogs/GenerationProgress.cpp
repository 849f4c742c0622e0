#include "ui/dialogs/GenerationProgress.h"

namespace ptk {

namespace {

constexpr auto kTitle = "Generate Report";
constexpr auto kText = "Generating for %1 employees...";
constexpr int kShownAfter = 500; // milliseconds

} // namespace

GenerationProgress::GenerationProgress(QWidget* window, std::int32_t total) : QProgressDialog(window)
{
    setObjectName("dlgProgress");
    setWindowTitle(kTitle);
    setLabelText(QString(kText).arg(total));
    setRange(0, total);
    setWindowModality(Qt::WindowModal);
    setMinimumDuration(kShownAfter);
}

bool GenerationProgress::GoOn(std::int32_t done)
{
    setValue(done);
    return !wasCanceled();
}

} // namespace ptk
