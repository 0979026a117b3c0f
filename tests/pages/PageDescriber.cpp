#include "tests/pages/PageDescriber.h"

#include <QAbstractButton>
#include <QApplication>
#include <QHoverEvent>
#include <QToolButton>

#include "device/channels/LoggingChannel.h"
#include "tests/support/DialogDriver.h"
#include "toolkit/CSliderCtrl.h"

namespace {

using Mood = MoodyProjector::Mood;

/// The outcomes of several cases. Cases with the same outcome are combined.
class Outcomes {
 public:
  void Add(const std::string& name, const std::string& outcome) {
    const auto same = std::ranges::find(outcomes_, outcome, &Outcome::second);
    if (same != outcomes_.end()) return void(same->first += ", " + name);
    outcomes_.emplace_back(name, outcome);
  }
  bool Differ() const { return outcomes_.size() > 1; }
  /// The cases in the order in which they were added.
  std::string Text(const std::string& before, const std::string& after) const {
    std::string text;
    for (const auto& [names, outcome] : outcomes_)
      text.append(before).append(names).append(":").append(outcome).append(after);
    return text;
  }

 private:
  using Outcome = std::pair<std::string, std::string>;
  std::vector<Outcome> outcomes_;
};

// The text that a visible control shows.
QString ShownBy(const ControlTemplate& control, const QWidget& widget) {
  using enum ControlKind;
  if (control.kind == Combo) return widget.property("currentIndex").toString();
  if (control.kind == Slider) return widget.property("value").toString();
  if (control.kind == Check) return QString::number(widget.property("checked").toInt());
  const bool isText = control.kind == Field || (control.kind == Text && *control.caption == '\0');
  return isText ? '"' + widget.property("text").toString() + '"' : QString();
}

class PageDescriber {
 public:
  PageDescriber(CDialog& page, MoodyProjector& projector, const std::function<void()>& refresh)
      : page_(page), projector_(projector), refresh_(refresh) {}

  std::vector<std::string> Describe() {
    pageReads_ = Log(refresh_);
    std::vector<std::string> parts{"reads\n   " + pageReads_ + '\n'};
    for (const RowTemplate& row : page_.Template()->rows) parts.push_back(DescribeRow(row));
    AddShown(parts);
    return parts;
  }

 private:
  std::string DescribeRow(const RowTemplate& row) {
    row_ = &row;
    helper_ = slider_ = 0;
    for (const ControlTemplate& control : row.controls)
      if (control.kind == ControlKind::Slider) slider_ = control.id;
    std::string text;
    for (const ControlTemplate& control : row.Present()) {
      if (page_.GetDlgItem(control.id)->isVisible()) text += DescribeControl(control);
    }
    return text;
  }

  std::string DescribeControl(const ControlTemplate& control) {
    const std::string id = std::to_string(control.id);
    const std::string caption = QString(control.caption).simplified().toStdString();
    using enum ControlKind;
    if (control.kind == Label) return (caption_ = caption) + '\n';
    // A row without a caption continues the one above.
    if (control.kind == Text && row_->controls[0].id == control.id)
      return caption_ + ' ' + caption + '\n';
    if (control.kind == Combo) return "    list " + id + DescribeList(control.id);
    if (control.kind == Slider) return "    slider " + id + DescribeSlider();
    if (control.kind == Field) return "    field " + id + '\n' + DescribeReset(control.id);
    if (control.kind == Colon || control.kind == Text || control.kind == Close) return {};
    return "    " + caption + ' ' + id + DescribeButton(control);
  }

  std::string DescribeList(int id) {
    const auto& list = page_.Item<CComboBox>(id);
    std::string text = " at " + std::to_string(list.currentIndex()) + '\n', sent;
    for (int i = 0; i < list.count(); ++i) {
      const std::string log = Log([&] { Choose(id, i); });
      text += "      " + list.itemText(i).toStdString() + ':' + log + (log.empty() ? Told() : "");
      text += list.currentIndex() == i ? "\n" : " →" + Shown(*row_) + '\n';
      sent += log;
    }
    if (sent.empty()) {
      helper_ = id;
      return text;
    }
    return text + Otherwise([&](bool refused) { Choose(id, refused ? 1 : 0); });
  }

  std::string DescribeSlider() {
    const auto& slider = page_.Item<CSliderCtrl>(slider_);
    const int minimum = slider.minimum(), maximum = slider.maximum();
    std::string text = " ticks " + std::to_string(slider.tickInterval());
    for (const int position : {minimum, maximum})
      text += ", " + std::to_string(position) + ':' + Log([&] { Drag(position); });
    return text + '\n' +
           Otherwise([&](bool refused) { Drag(refused ? (minimum + maximum) / 2 : minimum); });
  }

  // Clicks the button for each entry of the list beside it, or with the slider beside it at its end
  // and in its middle.
  std::string DescribeButton(const ControlTemplate& control) {
    auto& button = page_.Item<QAbstractButton>(control.id);
    const auto click = [&button] { button.click(); };
    std::string text, log;
    if (helper_ != 0) {
      auto& list = page_.Item<CComboBox>(helper_);
      for (int i = -1; i < list.count(); ++i) {
        list.setCurrentIndex(i);
        log = Log(click);
        text += "\n      " + list.currentText().toStdString() + ':' + log + Told();
      }
    } else {
      if (slider_ != 0 && control.kind != ControlKind::Button) {
        const auto& slider = page_.Item<CSliderCtrl>(slider_);
        Drag(control.kind == ControlKind::Plus ? slider.maximum() : slider.minimum());
        if (const std::string atEnd = Log(click); !atEnd.empty()) text += " at its end:" + atEnd;
        Drag((slider.minimum() + slider.maximum()) / 2);
      }
      log = Log(click);
      text += ':' + log + Told();
    }
    text += Shown(*row_).empty() ? "\n" : " →" + Shown(*row_) + '\n';
    return text + (log.empty() ? "" : Otherwise([&click](bool) { click(); }));
  }

  // The button beside a number that the mouse is above.
  std::string DescribeReset(int field) {
    const QPointF at = page_.GetDlgItem(field)->geometry().center();
    QHoverEvent above(QEvent::HoverMove, at, at, at);
    QApplication::sendEvent(&page_, &above);
    const auto buttons = page_.findChildren<QToolButton*>();
    const auto shown = std::ranges::find_if(buttons, &QWidget::isVisible);
    return shown == buttons.end() ? "" : "    ↺:" + Log([&] { (*shown)->click(); }) + '\n';
  }

  // What the same action does if the projector ignores or refuses it.
  std::string Otherwise(const std::function<void(bool refused)>& act) {
    Outcomes outcomes;
    for (const bool unreadable : {false, true}) {
      for (const bool refused : {false, true}) {
        projector_.unreadable = unreadable;
        projector_.mood = refused ? Mood::Refuses : Mood::Ignores;
        const std::string log = Log([&] { act(refused); });
        outcomes.Add(std::string(refused ? "refused" : "ignored") + (unreadable ? " unread" : ""),
                     log + " →" + Shown(*row_) + Told());
      }
    }
    projector_.mood = Mood::Obeys;
    projector_.unreadable = false;
    refresh_();
    return outcomes.Text("      ", "\n");
  }

  // What the rows show for all kinds of values, and if they cannot be read.
  void AddShown(std::vector<std::string>& parts) {
    constexpr std::int16_t kValues[] = {0,  1,  2,  3,  4,  5,  6,   7,   8, 9,
                                        11, 12, 13, 16, 17, 32, 128, 200, -1};
    const auto rows = page_.Template()->rows;
    std::vector<Outcomes> shown(rows.size());
    const auto add = [&](const std::string& name) {
      refresh_();
      for (std::size_t i = 0; i < rows.size(); ++i)
        shown[i].Add(name, Shown(rows[i]) + (name.ends_with("read") ? Note(rows[i]) : ""));
    };
    for (const std::int16_t value : kValues) {
      projector_.value = value;
      add(std::to_string(value));
    }
    projector_.value.reset();
    projector_.unreadable = true;
    add("unread");
    projector_.unreadable = false;
    add("read");
    for (std::size_t i = 0; i < rows.size(); ++i) {
      std::string& part = parts[i + 1];
      if (!part.empty() && shown[i].Differ()) part += "    shows\n" + shown[i].Text("      ", "\n");
    }
  }

  // What `act` sends, reads and opens.
  std::string Log(const std::function<void()>& act) {
    projector_.log.clear();
    act();
    std::string log = std::exchange(projector_.log, {});
    const std::size_t all = pageReads_.empty() ? std::string::npos : log.find(pageReads_);
    return all == std::string::npos ? log : log.replace(all, pageReads_.size(), " …");
  }

  // What the line beside Close says, and ! if the row is marked as refused.
  std::string Told() const {
    const QString said = QString::fromStdString(Said(page_)).replace('#', '~');
    std::string told = said.isEmpty() ? "" : " says " + said.toStdString();
    for (const int marked : Marked(page_))
      if (std::ranges::find(row_->controls, marked, &ControlTemplate::id) != row_->controls.end())
        told += " !";
    return told;
  }

  // The note on a row.
  std::string Note(const RowTemplate& row) const {
    std::string note;
    for (const ControlTemplate& control : row.controls) {
      if (control.kind <= ControlKind::Colon || !note.empty()) continue;
      const QWidget& widget = *page_.GetDlgItem(control.id);
      const QString described = widget.accessibleDescription();
      note = widget.toolTip().replace('#', '~').toStdString();
      if (described != widget.toolTip()) note += " described " + described.toStdString();
    }
    return note.empty() ? "" : " note " + note;
  }

  // What a row shows, and which of its controls are disabled.
  std::string Shown(const RowTemplate& row) const {
    std::string shown;
    for (const ControlTemplate& control : row.controls) {
      const QWidget* widget = page_.GetDlgItem(control.id);
      if (control.kind == ControlKind::Label && !widget->isEnabled()) shown += " grey";
      if (control.kind <= ControlKind::Colon || !widget->isVisible()) continue;
      QString text = ShownBy(control, *widget);
      if (!widget->isEnabled()) text += "off";
      if (!text.isEmpty()) shown += ' ' + text.toStdString();
    }
    return shown;
  }

  void Choose(int id, int entry) const {
    auto& list = page_.Item<CComboBox>(id);
    list.setCurrentIndex(entry);
    Q_EMIT list.activated(entry);
  }

  void Drag(int position) const {
    auto& slider = page_.Item<CSliderCtrl>(slider_);
    slider.setValue(position);
    Q_EMIT slider.EndScroll();
  }

  CDialog& page_;
  MoodyProjector& projector_;
  std::function<void()> refresh_;
  std::string pageReads_;
  std::string caption_;  // of the last row with a caption
  const RowTemplate* row_ = nullptr;
  // Numbers of the row's other controls: the list that its button uses, and the slider.
  int helper_ = 0, slider_ = 0;
};

}  // namespace

MoodyProjector::MoodyProjector(CAdvanceDlg& dialog)
    : settingText_(dialog.Projector().SettingText), simulation_(DescribeModel(dialog.Model())) {
  // Answers questions with No, and closes other windows.
  closer_.callOnTimeout([this] {
    QWidget* modal = QApplication::activeModalWidget();
    if (modal == nullptr) return;
    const auto* box = qobject_cast<const QMessageBox*>(modal);
    const bool isError = box != nullptr && box->icon() == QMessageBox::Critical;
    log += isError ? " error " : box != nullptr ? " box " : " ";
    log += box != nullptr ? box->text().mid(1).toStdString() : modal->metaObject()->className();
    modal->close();
  });
  closer_.start(0);
}

PjtReply MoodyProjector::Execute(const PjtCommand& command) {
  const bool read = IsRead(command.operation);
  if (!read && !settingText_.empty()) log += " '" + std::exchange(settingText_, {}) + '\'';
  log += read || mood == Mood::Obeys ? ' ' + FormatCommand(command) : " sends";
  if (read && value) return {AcceptedResult(command.operation), *value};
  if (read ? unreadable : mood == Mood::Refuses) return {RefusedResult(command.operation), -1};
  constexpr std::int16_t kAnswer = 126;  // reply to a step that the projector ignores
  if (!read && mood == Mood::Ignores) return {AcceptedResult(command.operation), kAnswer};
  return simulation_.Execute(command);
}

std::vector<std::string> DescribePage(CDialog& page, MoodyProjector& projector,
                                      const std::function<void()>& refresh) {
  return PageDescriber(page, projector, refresh).Describe();
}
