#include "ui/payday/FPaydayLines.h"

#include "ui_FPaydayLines.h"

namespace ptk {

namespace {

constexpr QSize kLinesSize(520, 400);
constexpr QSize kLeastLinesSize(320, 200);

} // namespace

FPaydayLines::FPaydayLines(QWidget* parent, const QString& title, const QStringList& lines)
    : QDialog(parent), m_ui(std::make_unique<Ui::FPaydayLines>())
{
    m_ui->setupUi(this);
    setWindowTitle(title);
    setMinimumSize(kLeastLinesSize);
    resize(kLinesSize);
    m_ui->txtPaydayLines->setPlainText(lines.join('\n'));
    connect(m_ui->cmdClose, &QPushButton::clicked, this, &QDialog::accept);
}

FPaydayLines::~FPaydayLines() = default;

} // namespace ptk
