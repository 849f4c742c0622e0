// A figure to be read and copied, never typed into: right-aligned, on the window's own ground.
#pragma once

#include <QLineEdit>

namespace ptk {

class FigureBox final : public QLineEdit
{
    Q_OBJECT

public:
    explicit FigureBox(QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void TakeWindowGround();
};

} // namespace ptk
