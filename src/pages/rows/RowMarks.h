#pragma once

#include <vector>

#include <QWidget>

#include "Namespace.h"

namespace AdvancedControl {

class SettingsDialog;

/// The marks at the left of a page's rows: an exclamation mark where the projector refused the
/// user's last action, a bar where it has another value than the wanted one. They lie over the
/// page's window, because a page has no space of its own there. User-interface thread only.
class RowMarks final : public QWidget {
  Q_OBJECT

 public:
  struct Mark {
    int control = 0;  ///< Of the row.
    bool refused = false;
    bool differs = false;

    friend bool operator==(const Mark&, const Mark&) = default;
  };

  /// `page` is already in its window, which owns the marks.
  explicit RowMarks(SettingsDialog& page);

  void Show(std::vector<Mark> marks);
  const std::vector<Mark>& Shown() const { return marks_; }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Place();

  SettingsDialog& page_;
  std::vector<Mark> marks_;
};

}  // namespace AdvancedControl
