// A box for a figure to read and copy, not to type into: right-aligned, on the window's own background, not reached by the Tab key.
#pragma once

#include <QLineEdit>

namespace ptk {

// Asks for no more width than a figure needs; it grows only where its layout has it fill a column.
class FigureBox final : public QLineEdit
{
    Q_OBJECT

public:
    explicit FigureBox(QWidget* parent = nullptr);

    // Makes the figure larger and bold.
    void SetImportant();

    // Shows the figure in grey, because it does not belong to what stands around it.
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
