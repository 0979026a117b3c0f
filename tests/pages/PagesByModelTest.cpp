// What every page of every model shows, reads and sends, and what follows when the projector does
// not do what it is asked for, held against the listing beside this file. The real dialog is used,
// on a simulated projector. After a wanted change write the listing anew with UPDATE_LISTING=1, and
// read what changed in it.

#include <cctype>
#include <fstream>
#include <map>
#include <sstream>

#include <QTabBar>
#include <gtest/gtest.h>

#include "tests/pages/PageDescriber.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/NumberedCatalog.h"
#include "toolkit/CSliderCtrl.h"

namespace {

/// Per page and part of it, the forms that it has and the models that have it so.
using Forms = std::vector<std::pair<std::string, std::string>>;
using Listing = std::map<std::string, std::map<std::size_t, Forms>>;

void Add(Listing& listing, const std::string& page, const std::vector<std::string>& parts,
         int code) {
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (parts[i].empty()) continue;
    Forms& forms = listing[page][i];
    const auto same = std::ranges::find(forms, parts[i], &Forms::value_type::first);
    auto& form = same != forms.end() ? *same : forms.emplace_back(parts[i], "");
    form.second += ' ' + std::to_string(code);
  }
}

constexpr int kWide = 1000;

// Each range text of the model tells its number by how much wider it is.
CModelInfo2 WithWideRanges(CModelInfo2 info) {
  for (std::size_t i = 0; i < RangeIndex::Count; ++i) {
    info.RangeText(i) = "100," + std::to_string(100 + kWide + i);
  }
  return info;
}

std::string Ranges(const CDialog& page) {
  std::string text;
  for (const auto* slider : page.findChildren<CSliderCtrl*>()) {
    if (!slider->isVisible()) continue;
    const int minimum = slider->minimum(), width = slider->maximum() - minimum;
    text += "  slider " + slider->accessibleName().toStdString() + ": ";
    text += width < kWide ? "its own" : std::to_string(width - kWide);
    text += ", from " + std::to_string(minimum) + ", ticks " +
            std::to_string(slider->tickInterval()) + '\n';
  }
  return text;
}

void AddPages(Listing& listing, const CModelInfo2& info, bool ranges) {
  const std::string type = "type " + std::to_string(info.DialogType) + ", ";
  CAdvanceDlg dialog;
  dialog.CopyData(&info, 0);
  PageDescriber describer(dialog);
  ASSERT_TRUE(dialog.Create());
  dialog.show();
  const auto add = [&](const std::string& name, CDialog& page, const auto& refresh) {
    if (ranges) {
      Add(listing, type + name + ", ranges", {Ranges(page)}, info.ModelCode);
    } else {
      Add(listing, type + name, describer.Describe(page, refresh), info.ModelCode);
    }
  };
  auto* tabs = dialog.findChild<QTabBar*>();
  std::string captions;
  for (int tab = 0; tab < tabs->count(); ++tab) {
    tabs->setCurrentIndex(tab);
    CTabPage& page = *dialog.ShownPage();
    const std::string name = "page " + std::to_string(page.TemplateNumber());
    captions += "  " + tabs->tabText(tab).toStdString().substr(1) + ": " + name + '\n';
    add(name, page, [&page] { page.InitDisp(); });
  }
  if (!ranges) Add(listing, type + "tabs", {captions}, info.ModelCode);
  if (info.DialogType != 5) return;
  for (const auto& [kind, name] : {std::pair{PopUp::Gamma, "gamma"},
                                   {PopUp::ColorTemp, "color temperature"},
                                   {PopUp::Service, "service"}}) {
    if (kind != PopUp::Service && info.ModelCode != 30) continue;  // the same for every model
    const auto popUp = MakePopUp(kind, dialog);
    Open(*popUp);
    add(name, *popUp, [&popUp] { Open(*popUp); });
  }
}

// Numbers of list texts get the texts behind them, so that a reader sees what they say.
std::string WithTexts(const std::string& listing) {
  std::string text;
  for (std::size_t at = 0; at < listing.size(); ++at) {
    text += listing[at];
    if (listing[at] != '#' || std::isdigit(static_cast<unsigned char>(listing[at + 1])) == 0) {
      continue;
    }
    const int number = std::stoi(listing.substr(at + 1, 5));
    text += std::to_string(number) + ' ' + CatalogText(kListCategory, number);
    at += std::to_string(number).size();
  }
  return text;
}

TEST(PagesByModel, AreAsListed) {
  Listing listing;
  {
    const NumberedCatalog numbers("#");
    for (const CModelInfo2& model : EveryModel()) {
      AddPages(listing, model, false);
      AddPages(listing, WithWideRanges(model), true);
    }
  }
  std::string text;
  for (const auto& [page, parts] : listing) {
    text += page + '\n';
    for (const auto& [part, forms] : parts) {
      for (const auto& [form, codes] : forms) text += " codes" + codes + '\n' + form;
    }
  }
  text = WithTexts(text);
  const std::string path = TEST_SOURCE_DIR "/pages/PagesByModel.txt";
  if (qEnvironmentVariableIsSet("UPDATE_LISTING")) std::ofstream(path) << text;

  std::ifstream file(path);
  std::istringstream actual(text);
  std::string heading, expectedLine, actualLine;
  for (int line = 1; std::getline(actual, actualLine); ++line) {
    ASSERT_TRUE(std::getline(file, expectedLine)) << "more than listed: " << actualLine;
    if (!expectedLine.starts_with(' ')) heading = expectedLine;
    ASSERT_EQ(actualLine, expectedLine) << path << ':' << line << ", " << heading;
  }
  EXPECT_FALSE(std::getline(file, expectedLine)) << "no longer there: " << expectedLine;
}

}  // namespace
