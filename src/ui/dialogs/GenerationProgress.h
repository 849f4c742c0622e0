// Tells how far a report over several employees is, once it takes longer than half a second, and lets the user stop it.
#pragma once

#include <cstdint>
#include <QProgressDialog>

namespace ptk {

class GenerationProgress final : public QProgressDialog
{
public:
    GenerationProgress(QWidget* window, std::int32_t total);

    bool GoOn(std::int32_t done); // false once the user has cancelled
};

} // namespace ptk
