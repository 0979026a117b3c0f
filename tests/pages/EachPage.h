#pragma once

#include <QApplication>
#include <QTabBar>
#include <gtest/gtest.h>

#include "tests/support/DialogDriver.h"

// Visits the dialog's pages and pop-ups, to check a rule that holds for all of them.

using PageCheck = std::function<void(OpenDialog&, CTabPage&)>;

inline void ForEachPage(const PageCheck& check,
                        const std::vector<CModelInfo2>& models = EveryModel()) {
  for (const CModelInfo2& model : models) {
    OpenDialog open(model);
    const int tabs = open.Dialog().findChild<QTabBar*>()->count();
    for (int tab = 0; tab < tabs; ++tab) {
      open.SelectTab(tab);
      SCOPED_TRACE(NameOf(model) + " tab " + std::to_string(tab));
      ASSERT_NE(open.Page().Template(), nullptr);
      check(open, open.Page());
    }
  }
}

inline void ForEachPopup(const std::function<void(CDialog&)>& check) {
  OpenDialog host(MakeModel(5, 44));
  for (const PopUp kind : {PopUp::Gamma, PopUp::ColorTemp, PopUp::Service}) {
    const auto popUp = MakePopUp(kind, host.Dialog());
    popUp->setParent(nullptr, popUp->windowFlags());  // as created by its page
    SCOPED_TRACE(popUp->metaObject()->className());
    QTimer::singleShot(0, popUp.get(), [&] {
      // The letters of mnemonics may make a button wider, and that button all others.
      for (int pass = 0; pass < 2; ++pass) QApplication::processEvents();
      check(*popUp);
      popUp->reject();
    });
    popUp->DoModal();
  }
}
