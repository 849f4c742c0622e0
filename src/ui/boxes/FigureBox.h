// A figure to be read and copied, never typed into: right-aligned, on the window's own ground, no stop of the Tab key.
#pragma once

#include <QLineEdit>

namespace ptk {

// As wide as a figure needs, which is little: it grows only where its layout has it fill a column.
class FigureBox final : public QLineEdit
{
    Q_OBJECT

public:
    explicit FigureBox(QWidget* parent = nullptr);

    // Larger and bold.
    void SetImportant();

    // Grey, for a figure that does not belong to what stands around it.
    void SetFaded(bool faded);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void changeEvent(QEvent* event) override;

private:
    void TakeColors();
    [[nodiscard]] QSize SizeFor(const char* figure) const;

    bool m_faded = false;
};

} // namespace ptk
