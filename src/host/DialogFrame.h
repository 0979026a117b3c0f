#pragma once

#include <QSize>

#include "Namespace.h"

class CDialog;
class QWidget;

namespace AdvancedControl {

class DialogPages;
class FindLine;
class StatusLine;

/// Places the parts of the dialog around its pages, and draws the frame between tabs and Close.
/// User-interface thread only.
class DialogFrame {
 public:
  /// All parts belong to `dialog`.
  struct Parts {
    DialogPages& pages;
    QWidget& strip;
    StatusLine& status;
    FindLine* find;  ///< Null until the first search.
    QWidget& close;
  };

  explicit DialogFrame(CDialog& dialog) : dialog_(dialog) {}

  /// Gives the dialog the size that shows all tabs and pages completely, limited to its screen.
  void FitToPages(const Parts& parts);
  /// That size, whatever the screen's.
  QSize WholeSize() const { return wholeSize_; }

  void Place(const Parts& parts) const;
  void Paint(const Parts& parts) const;

 private:
  CDialog& dialog_;
  QSize wholeSize_;
};

}  // namespace AdvancedControl
