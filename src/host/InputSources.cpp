// The input sources of an open dialog: those that the host replaces, and, if it names none, those
// that the projector reports.

#include <QApplication>

#include "host/DialogParts.h"
#include "pages/common/CTabPage.h"

void CAdvanceDlg::ReplaceSources(const SourceList& sources) {
  const ModelData before = Model();
  parts_->data.ReplaceSources(sources);
  parts_->ShowSources(before);
}

void CAdvanceDlg::Parts::UseReportedInputs() {
  if (dialog.IsBusy() || QApplication::activePopupWidget() != nullptr) return;
  const auto reported = data.NewReportedInputs();
  if (!reported) return;
  const ModelData before = data.Model();
  data.UseReported(*reported);
  ShowSources(before);
}

// Refills the lists of sources of an open dialog, and reads the shown page again.
void CAdvanceDlg::Parts::ShowSources(const ModelData& before) {
  if (!dialog.IsCreated()) return;
  for (CTabPage* page : pages.Created()) page->RefillLists(before);
  if (reading || dialog.projector_.IsWaiting()) {
    waiting.OnStale();
  } else {
    dialog.DispTabScreen();
  }
}
