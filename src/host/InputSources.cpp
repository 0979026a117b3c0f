// The input sources of an open dialog: those that the host replaces, and, if it names none, those
// that the projector reports.

#include <chrono>

#include <QApplication>
#include <QTimer>

#include "host/CAdvanceDlg.h"
#include "pages/common/CTabPage.h"

namespace {

constexpr std::chrono::milliseconds kInputsPeriod{500};

}  // namespace

void CAdvanceDlg::ReplaceSources(const SourceList& sources) {
  const ModelData before = model_;
  if (next_) next_->model.MySourceList = sources;
  model_.MySourceList = sources;
  if (!IsCreated()) return;
  for (std::size_t i = 0; i < kPageCount; ++i) {
    CTabPage& page = Page(static_cast<PageId>(i));
    if (page.Template() != nullptr) page.RefillLists(before);
  }
  if (reading_ || projector_.IsWaiting()) {
    readsAgain_ = true;
  } else {
    DispTabScreen();
  }
}

std::optional<SourceList> CAdvanceDlg::NewReportedInputs() const {
  const SourceList& known = model_.MySourceList;
  if (known.Size() > 0 && known != reportedInputs_) return std::nullopt;
  auto reported = projector_.Inputs();
  return reported == known ? std::nullopt : reported;
}

void CAdvanceDlg::UseReportedInputs() {
  if (IsBusy() || QApplication::activePopupWidget() != nullptr) return;
  if (const auto reported = NewReportedInputs()) {
    reportedInputs_ = reported;
    ReplaceSources(*reported);
  }
}

void CAdvanceDlg::WatchInputs() {
  const bool namesInputs = model_.MySourceList.Size() > 0 && !reportedInputs_;
  if (!namesInputs) inputsWatch_->start(kInputsPeriod);
}
