#include "app/desktop/profiles/ProfileEditing.h"

#include <utility>

#include <QWidget>

#include "app/desktop/profiles/ProfileActions.h"
#include "app/desktop/profiles/ProfileFileActions.h"
#include "app/desktop/profiles/ProfileHistory.h"
#include "app/desktop/profiles/TransferActions.h"

ProfileEditing::ProfileEditing(ProfileDocument& document,
                               std::function<std::vector<int>()> selected, QWidget& window)
    : QObject(&window),
      history_(new ProfileHistory(document, window)),
      files_(new ProfileFileActions(document, *history_, window)),
      projectors_(new ProfileActions(document, *history_, *files_, std::move(selected), window)),
      transfers_(new TransferActions(document, *history_, *files_, window)) {}

void ProfileEditing::Update() {
  files_->Update();
  projectors_->Update();
  transfers_->Update();
}
