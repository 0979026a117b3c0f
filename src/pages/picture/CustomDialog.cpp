#include "pages/picture/CustomDialog.h"

#include <QApplication>
#include <QBoxLayout>
#include <QLineEdit>

#include "toolkit/CSliderCtrl.h"
#include "toolkit/WindowText.h"

namespace AdvancedControl {

// The focus changes once more while the controls are being deleted.
CustomDialog::~CustomDialog() { delete picture_; }

const ValueRow& CustomDialog::RowAt(std::size_t row) const {
  return std::get<ValueRow>(table_.rows[row + 1]);
}

bool CustomDialog::OnInitDialog() {
  RowDialog::OnInitDialog();
  for (std::size_t row = 0; row < RowCount(); ++row) {
    GetDlgItem(RowAt(row).reset->button)->setVisible(!hideResets_);
  }
  AddPicture();
  ShowUnread();
  Refresh();
  return true;
}

void CustomDialog::AddPicture() {
  delete picture_;
  picture_ = new CurveView(this);
  picture_->setAccessibleName(windowTitle());
  static_cast<QBoxLayout*>(layout())->addWidget(picture_, 0, Qt::AlignVCenter);
  for (std::size_t row = 0; row < RowCount(); ++row) {
    const ValueIds& ids = RowAt(row).ids;
    connect(&Item<QLineEdit>(ids.field), &QLineEdit::textChanged, this, &CustomDialog::Draw);
    connect(&Item<CSliderCtrl>(ids.slider), &CSliderCtrl::valueChanged, this, &CustomDialog::Draw);
  }
  connect(picture_, &CurveView::Dragged, this, [this](int row, double height) {
    const auto index = static_cast<std::size_t>(row);
    auto& slider = Item<CSliderCtrl>(RowAt(index).ids.slider);
    if (!IsBusy() && slider.isEnabled()) slider.DragTo(ValueAt(index, height));
  });
  connect(picture_, &CurveView::Dropped, this, [this](int row) {
    auto& slider = Item<CSliderCtrl>(RowAt(static_cast<std::size_t>(row)).ids.slider);
    if (slider.isEnabled()) slider.Drop();
  });
  connect(qApp, &QApplication::focusChanged, picture_, [this] {
    if (isVisible() && IsCreated()) Draw();
  });
  Draw();
}

std::optional<int> CustomDialog::FocusedRow() const {
  for (std::size_t row = 0; row < RowCount(); ++row) {
    const ValueIds& ids = RowAt(row).ids;
    for (const int id : {ids.minus, ids.slider, ids.plus, ids.field, RowAt(row).reset->button}) {
      if (GetDlgItem(id)->hasFocus()) return static_cast<int>(row);
    }
  }
  return {};
}

// While the user moves a slider, it already shows the new value; a field shows what is pending.
void CustomDialog::Draw() {
  Values accepted;
  Values tried;
  QStringList description;
  for (std::size_t row = 0; row < RowCount(); ++row) {
    const auto& slider = Item<CSliderCtrl>(RowAt(row).ids.slider);
    const auto& field = Item<QLineEdit>(RowAt(row).ids.field);
    const std::optional<int> value = Row<RowView>(RowAt(row).ids.slider).Position();
    accepted.push_back(value);
    tried.push_back(value);
    if (!value) continue;
    const QString number = QString::number(*value);
    const bool moved = qBound(slider.minimum(), *value, slider.maximum()) != slider.value();
    if (moved) tried.back() = slider.value();
    if (field.text() != number) tried.back() = field.text().toInt();
    const QWidget& caption = *GetDlgItem(Template()->rows[row + 1].controls.front().id);
    description += WindowText(caption) + QLatin1Char(' ') + number;
  }
  std::vector<CurveView::Line> lines = LinesOf(accepted);
  std::vector<CurveView::Line> ahead = LinesOf(tried);
  for (std::size_t i = 0; i < lines.size(); ++i) lines[i].tried = std::move(ahead[i].accepted);
  picture_->Show(std::move(lines), FocusedRow());
  picture_->setAccessibleDescription(description.join(QStringLiteral(", ")));
}

}  // namespace AdvancedControl
