// What every page of every model shows, reads and sends, and what follows when the projector does
// not do what it is asked for, held against the listing beside this file. The real dialog is used,
// on a simulated projector. After a wanted change write the listing anew with UPDATE_LISTING=1, and
// read what changed in it.

#include <cctype>
#include <fstream>
#include <map>
#include <sstream>

#include <QAbstractButton>
#include <QTabBar>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include "i18n/Catalog.h"
#include "settings/CatalogNumbers.h"
#include "tests/i18n/ModuleBuilder.h"
#include "tests/pages/PageDescriber.h"
#include "tests/support/DialogDriver.h"
#include "toolkit/CSliderCtrl.h"

namespace {

/// While it lives, every caption, text of the list category and error text is its own number
/// behind a #, so that a test sees which text is asked for, also where two texts read the same.
struct NumberedCatalog {
  NumberedCatalog() {
    TestBlock captions{MessageId(4, 0), {}};
    for (int number = 0; number < 4400; ++number) {
      captions.entries.push_back(Ansi('#' + std::to_string(number) + "\r\n"));
    }
    TestBlock list{MessageId(5, 0), captions.entries};
    list.entries[ListText::StatusValue] = Ansi("status %1\r\n");  // around another text
    const TestBlock errors{MessageId(2201, 0), captions.entries};
    const std::string folder = own.path().toStdString();
    TestModule({{1033, {captions, list, errors}}}).Save(folder + "/mcdll.dll");
    EXPECT_EQ(LoadCatalog(std::span(&folder, 1)), 0);
  }
  ~NumberedCatalog() { LoadCatalog(); }

  QTemporaryDir own;  // tests that run side by side have catalogs of their own
};

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

// Range texts that are wide, each of another width.
constexpr int kWide = 4000;

CModelInfo2 WithWideRanges(CModelInfo2 info) {
  for (std::size_t i = 0; i < RangeIndex::Count; ++i) {
    info.RangeText(i) = "-2000," + std::to_string(kWide - 2000 + static_cast<int>(i));
  }
  return info;
}

// Where the sliders of a page have their ranges from, and where their buttons stop.
std::string Ranges(CDialog& page, MoodyProjector& projector, const std::function<void()>& refresh) {
  projector.mood = MoodyProjector::Mood::Ignores;
  const auto lastValueThatSteps = [&](int button, int first) {
    int stepping = first, stopped = -first;
    while (std::abs(stepping - stopped) > 1) {
      projector.value = static_cast<std::int16_t>((stepping + stopped) / 2);
      refresh();
      projector.log.clear();
      page.Item<QAbstractButton>(button).click();
      const bool sends = projector.log.find(" sends") != std::string::npos;
      (sends ? stepping : stopped) = *projector.value;
    }
    return std::to_string(stepping);
  };
  std::string text;
  for (const RowTemplate& row : page.Template()->rows) {
    for (std::size_t i = 0; i < row.controls.size(); ++i) {
      if (row.controls[i].kind != ControlKind::Slider) continue;
      const auto& slider = page.Item<CSliderCtrl>(row.controls[i].id);
      if (!slider.isVisible()) continue;
      const int minimum = slider.minimum(), range = slider.maximum() - minimum - kWide;
      text += "  slider " + std::to_string(row.controls[i].id) + ": ";
      text += range < 0 ? "its own" : std::to_string(range);
      text += ", from " + std::to_string(minimum) + ", ticks ";
      text += std::to_string(slider.tickInterval()) + "; steps down from ";
      text += lastValueThatSteps(row.controls[i - 1].id, 1000) + ", up from ";
      text += lastValueThatSteps(row.controls[i + 1].id, -1000) + '\n';
    }
  }
  return text;
}

void AddPages(Listing& listing, const CModelInfo2& info, bool ranges) {
  const std::string type = "type " + std::to_string(info.DialogType) + ", ";
  CAdvanceDlg dialog;
  dialog.CopyData(&info, 0);
  const auto projector = std::make_shared<MoodyProjector>(dialog);
  dialog.Projector().SetChannel(projector);
  ASSERT_TRUE(dialog.Create());
  dialog.show();
  const auto add = [&](const std::string& name, CDialog& page,
                       const std::function<void()>& refresh) {
    if (ranges) {
      Add(listing, type + name + ", ranges", {Ranges(page, *projector, refresh)}, info.ModelCode);
    } else {
      Add(listing, type + name, DescribePage(page, *projector, refresh), info.ModelCode);
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
    const NumberedCatalog numbers;
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
