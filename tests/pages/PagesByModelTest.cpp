// Compares what every page of every model shows, reads and sends, also if the projector does not
// obey, with the files in listing/, one for each page. Uses the real dialog on a simulated
// projector. After an intended change, rewrite the files with UPDATE_LISTING=1 and review the
// differences.

#include <cctype>
#include <filesystem>
#include <sstream>

#include <QAbstractButton>
#include <QTabBar>
#include <QTemporaryDir>

#include "i18n/Catalog.h"
#include "settings/CatalogNumbers.h"
#include "tests/i18n/ModuleBuilder.h"
#include "tests/pages/PageDescriber.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/Programs.h"
#include "toolkit/CSliderCtrl.h"

namespace {

/// During its lifetime, every caption, list text and error text is "#" and its own number. A test
/// then sees which text is used, even if two texts are the same.
struct NumberedCatalog {
  NumberedCatalog() {
    TestBlock captions{MessageId(4, 0), {}};
    for (int number = 0; number < 4400; ++number)
      captions.entries.push_back(Ansi('#' + std::to_string(number) + "\r\n"));
    TestBlock list{MessageId(5, 0), captions.entries};
    // Texts with an inserted text, and with an inserted number.
    list.entries[ListText::StatusValue] = Ansi("status %1\r\n");
    list.entries[ListText::Hours] = Ansi("%1!d! h\r\n");
    list.entries[ListText::RangeNote] = Ansi("%1!d! to %2!d!\r\n");
    list.entries[ListText::NotAccepted] = Ansi("refused: %1\r\n");
    list.entries[ListText::NotAcceptedHas] = Ansi("refused: %1, has %2\r\n");
    for (const int done : {ListText::ActionDone, ListText::ActionSent, ListText::ResetDone,
                           ListText::ChoiceGoesNowhere})
      list.entries[static_cast<std::size_t>(done)] = Ansi(std::to_string(done) + " %1\r\n");
    const TestBlock errors{MessageId(2201, 0), captions.entries};
    const std::string folder = own.path().toStdString();
    TestModule({{1033, {captions, list, errors}}}).Save(folder + "/mcdll.dll");
    EXPECT_EQ(LoadCatalog(std::span(&folder, 1)), 0);
  }
  ~NumberedCatalog() { LoadCatalog(); }

  QTemporaryDir own;  // tests that run in parallel need their own catalogs
};

/// The forms of a row with the models that have them; by file, position on the page and caption.
using Forms = std::vector<std::pair<std::string, std::string>>;
using Listing = std::map<std::string, std::map<std::pair<std::size_t, std::string>, Forms>>;

// The first line of a part is its caption; an empty part is absent.
void Add(Listing& listing, const std::string& file, const std::vector<std::string>& parts,
         const CModelInfo2& info) {
  for (std::size_t i = 0; i < parts.size(); ++i) {
    if (parts[i].empty()) continue;
    const std::size_t end = parts[i].find('\n');
    const std::string form = parts[i].substr(end + 1);
    Forms& forms = listing[file][{i, parts[i].substr(0, end)}];
    const auto same = std::ranges::find(forms, form, &Forms::value_type::first);
    (same != forms.end() ? *same : forms.emplace_back(form, "")).second +=
        ' ' + std::to_string(info.ModelCode);
  }
}

// Wide range texts, each with a different width.
constexpr int kWide = 4000;

CModelInfo2 WithWideRanges(CModelInfo2 info) {
  for (std::size_t i = 0; i < RangeIndex::Count; ++i)
    info.RangeText(i) = "-2000," + std::to_string(kWide - 2000 + static_cast<int>(i));
  return info;
}

// The source of each slider's range on a page, and the values at which its buttons stop; one part
// for each part of `DescribePage`.
std::vector<std::string> Ranges(CDialog& page, MoodyProjector& projector,
                                const std::function<void()>& refresh) {
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
  std::vector<std::string> parts(1);
  for (const RowTemplate& row : page.Template()->rows) {
    std::string& text = parts.emplace_back();
    for (std::size_t i = 0; i < row.controls.size(); ++i) {
      if (row.controls[i].kind != ControlKind::Slider) continue;
      const auto& slider = page.Item<CSliderCtrl>(row.controls[i].id);
      if (!slider.isVisible()) continue;
      const int minimum = slider.minimum(), range = slider.maximum() - minimum - kWide;
      text += QString(row.controls[0].caption).simplified().toStdString() + ", range\n";
      text += "    slider " + std::to_string(row.controls[i].id) + ": ";
      text += range < 0 ? "its own" : std::to_string(range);
      text += ", from " + std::to_string(minimum) + ", ticks ";
      text += std::to_string(slider.tickInterval()) + "; steps down from ";
      text += lastValueThatSteps(row.controls[i - 1].id, 1000) + ", up from ";
      text += lastValueThatSteps(row.controls[i + 1].id, -1000) + '\n';
    }
  }
  return parts;
}

// All controls of a page, also those that no model shows.
std::string Controls(const DialogTemplate& page) {
  std::ostringstream text;
  text << "template\n    " << page.width << ' ' << page.height << ' ' << page.rulerHeight;
  for (const RowTemplate& row : page.rows) {
    text << "\n    " << static_cast<int>(row.place);
    for (const ControlTemplate& control : row.Present()) {
      text << ' ' << static_cast<int>(control.kind) << ' ' << control.id << ' ' << control.caption;
      for (const char* entry : control.entries) text << '|' << entry;
    }
  }
  return text.str();
}

// Names of the pages by template number.
const std::map<int, std::string> kPageNames{
#define PAGE(identifier, number, pageClass) {number, #identifier},
#include "settings/Pages.def"
};

void AddPages(Listing& listing, const CModelInfo2& info, bool ranges) {
  CAdvanceDlg dialog;
  dialog.CopyData(&info, 0);
  const auto projector = std::make_shared<MoodyProjector>(dialog);
  dialog.Projector().SetChannel(projector);
  ASSERT_TRUE(dialog.Create());
  dialog.show();
  const auto add = [&](const std::string& name, CDialog& page,
                       const std::function<void()>& refresh) {
    Add(listing, name,
        ranges ? Ranges(page, *projector, refresh) : DescribePage(page, *projector, refresh), info);
    if (!ranges) Add(listing, name, {Controls(*page.Template())}, info);
  };
  auto* tabs = dialog.findChild<QTabBar*>();
  std::string captions = "captions and pages\n";
  for (int tab = 0; tab < tabs->count(); ++tab) {
    tabs->setCurrentIndex(tab);
    CTabPage& page = *dialog.ShownPage();
    const std::string& name = kPageNames.at(page.TemplateNumber());
    captions += "    " + tabs->tabText(tab).toStdString().substr(1) + ": " + name + '\n';
    add(name, page, [&page] { page.InitDisp(); });
  }
  if (!ranges) Add(listing, "Tabs", {captions}, info);
  if (info.DialogType != 5) return;
  for (const auto& [kind, name] : {std::pair{PopUp::Gamma, "Gamma"},
                                   {PopUp::ColorTemp, "ColorTemp"},
                                   {PopUp::Service, "Service"}}) {
    if (kind != PopUp::Service && info.ModelCode != 30) continue;  // the same for every model
    const auto popUp = MakePopUp(kind, dialog);
    Open(*popUp);
    add(name, *popUp, [&popUp] { Open(*popUp); });
  }
}

// Appends the texts to numbers of list texts, for the reader.
std::string WithTexts(const std::string& listing) {
  std::string text;
  for (std::size_t at = 0; at < listing.size(); ++at) {
    text += listing[at];
    if (listing[at] != '#' || std::isdigit(static_cast<unsigned char>(listing[at + 1])) == 0)
      continue;
    const int number = std::stoi(listing.substr(at + 1, 5));
    text += std::to_string(number) + ' ' + CatalogText(kListCategory, number);
    at += std::to_string(number).size();
  }
  return text;
}

/// Compares the sections of one type in a file with what was found.
void ExpectListed(const std::filesystem::path& file, int type, const QStringList& found) {
  std::ostringstream listed;
  listed << std::ifstream(file).rdbuf();
  QStringList before, behind;
  for (const QString& section :
       QString::fromStdString(listed.str()).trimmed().split("\n\n", Qt::SkipEmptyParts)) {
    const int of = section.section(',', 0, 0).mid(5).toInt();
    if (of != type) (of < type ? before : behind) << section;
  }
  const std::string all = (before + found + behind).join("\n\n").toStdString() + '\n';
  if (listed.str() == all) return;
  if (qEnvironmentVariableIsSet("UPDATE_LISTING")) return void(std::ofstream(file) << all);
  const QStringList arguments{"-U2", "-F^type", QString::fromStdString(file.string()), "-"};
  const Outcome diff = Run("diff", arguments, QByteArray::fromStdString(all));
  ADD_FAILURE() << file << ", expected (-) and found (+):\n" << diff.output;
}

class PagesByModel : public testing::TestWithParam<int> {};

INSTANTIATE_TEST_SUITE_P(Type, PagesByModel, testing::Range(1, 6),
                         testing::PrintToStringParamName());

TEST_P(PagesByModel, MatchTheListing) {
  const int type = GetParam();
  Listing listing;
  {
    const NumberedCatalog numbers;
    for (const CModelInfo2& model : EveryModel()) {
      if (model.DialogType != type) continue;
      AddPages(listing, model, false);
      AddPages(listing, WithWideRanges(model), true);
    }
  }
  const std::filesystem::path folder = TEST_SOURCE_DIR "/pages/listing";
  for (const auto& file : std::filesystem::directory_iterator(folder)) {
    listing[file.path().stem()];  // also those that have nothing of this type any more
  }
  for (const auto& [name, rows] : listing) {
    QStringList found;
    for (const auto& [row, forms] : rows) {
      std::string text = "type " + std::to_string(type) + ", " + row.second + '\n';
      for (const auto& [form, codes] : forms) (((text += "  codes") += codes) += '\n') += form;
      found << QString::fromStdString(WithTexts(text)).trimmed();
    }
    ExpectListed(folder / (name + ".txt"), type, found);
  }
}

}  // namespace
