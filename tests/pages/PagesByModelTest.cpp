// What every page of every model shows, reads and sends, held against the listing beside this file.
// The real dialog is used, on a simulated projector. After a wanted change write the listing anew
// with UPDATE_LISTING=1, and read what changed in it.

#include <cctype>
#include <fstream>
#include <map>
#include <sstream>

#include <QAbstractButton>
#include <QApplication>
#include <QTabBar>
#include <QTimer>
#include <gtest/gtest.h>

#include "device/LoggingChannel.h"
#include "device/ModelDataIntake.h"
#include "simulator/SimulatedProjector.h"
#include "tests/support/DialogDriver.h"
#include "tests/support/NumberedCatalog.h"
#include "toolkit/CSliderCtrl.h"

namespace {

class Describer {
 public:
  explicit Describer(const CModelInfo2& info) : info_(info) {
    const auto simulated = std::make_shared<SimulatedProjector>(DescribeModel(MakeModelData(info)));
    channel_ = std::make_shared<LoggingChannel>(
        simulated, [this](const PjtCommand& command, const PjtReply&, auto) {
          (IsRead(command.operation) ? reads_ : sent_) += ' ' + FormatCommand(command);
        });
    // Questions are answered with No; what else comes up is closed.
    QObject::connect(&closer_, &QTimer::timeout, [this] {
      QWidget* modal = QApplication::activeModalWidget();
      if (modal == nullptr) return;
      sent_ += std::string(" (") + modal->metaObject()->className() + ")";
      modal->close();
    });
    closer_.start(0);
  }

  const std::shared_ptr<LoggingChannel>& Channel() const { return channel_; }

  /// What is read, then a text for each row of the template; empty for a row that is not there.
  std::vector<std::string> Describe(CDialog& dialog, const std::function<void()>& refresh) {
    reads_.clear();
    const std::string sent = Sent(refresh);
    std::vector<std::string> parts{"  reads:" + reads_ + '\n' + sent};
    for (const RowTemplate& row : dialog.Template()->rows) {
      std::string& part = parts.emplace_back();
      for (const ControlTemplate& control : row.controls) {
        if (control.kind == ControlKind::None) break;
        if (dialog.GetDlgItem(control.id)->isVisible()) part += DescribeControl(dialog, control);
      }
    }
    return parts;
  }

 private:
  std::string DescribeControl(CDialog& dialog, const ControlTemplate& control) {
    QWidget& widget = *dialog.GetDlgItem(control.id);
    const std::string id = std::to_string(control.id);
    const std::string caption = QString(control.caption).simplified().toStdString();
    switch (control.kind) {
      case ControlKind::Label:
        return "  " + caption + '\n';
      case ControlKind::Combo:
        return "    list " + id + '\n' + DescribeList(static_cast<CComboBox&>(widget));
      case ControlKind::Slider:
        return "    slider " + id + DescribeSlider(static_cast<CSliderCtrl&>(widget)) + '\n';
      case ControlKind::Field:
        return "    field " + id + '\n';
      case ControlKind::Minus:
      case ControlKind::Plus:
      case ControlKind::Arrow:
      case ControlKind::Button:
      case ControlKind::Check:
        return "    " + caption + ' ' + id + ':' +
               Sent([&] { static_cast<QAbstractButton&>(widget).click(); }) +
               (widget.isEnabled() ? "\n" : " off\n");
      default:
        return {};
    }
  }

  std::string DescribeList(CComboBox& list) {
    std::string text;
    for (int i = 0; i < list.count(); ++i) {
      text += "      " + list.itemText(i).toStdString() + ':' + Sent([&] {
                list.setCurrentIndex(i);
                Q_EMIT list.activated(i);
              }) +
              '\n';
    }
    return text;
  }

  std::string DescribeSlider(CSliderCtrl& slider) {
    std::string text = " ticks " + std::to_string(slider.tickInterval());
    for (const int position : {slider.minimum(), slider.maximum()}) {
      text += ", " + std::to_string(position) + ':' + Sent([&] {
                slider.setValue(position);
                Q_EMIT slider.EndScroll();
              });
    }
    return text;
  }

  std::string Sent(const std::function<void()>& act) {
    sent_.clear();
    act();
    return sent_;
  }

  CModelInfo2 info_;
  std::shared_ptr<LoggingChannel> channel_;
  QTimer closer_;
  std::string reads_;
  std::string sent_;
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

void AddPages(Listing& listing, const CModelInfo2& info) {
  const int code = info.ModelCode;
  const std::string type = "type " + std::to_string(info.DialogType);
  Describer describer(info);
  CAdvanceDlg dialog;
  dialog.CopyData(&info, 0);
  dialog.Projector().SetChannel(describer.Channel());
  ASSERT_TRUE(dialog.Create());
  dialog.show();
  auto* tabs = dialog.findChild<QTabBar*>();
  std::string captions;
  for (int tab = 0; tab < tabs->count(); ++tab) {
    tabs->setCurrentIndex(tab);
    CTabPage& page = *dialog.ShownPage();
    const std::string number = std::to_string(page.TemplateNumber());
    captions += "  " + tabs->tabText(tab).toStdString().substr(1) + ": page " + number + '\n';
    Add(listing, type + ", page " + number, describer.Describe(page, [&] { page.InitDisp(); }),
        code);
  }
  Add(listing, type + ", tabs", {captions}, code);
  if (info.DialogType != 5) return;
  for (const auto& [kind, name] : {std::pair{PopUp::Gamma, "gamma"},
                                   {PopUp::ColorTemp, "color temperature"},
                                   {PopUp::Service, "service"}}) {
    if (kind != PopUp::Service && code != 30) continue;  // the same for every model
    const auto popUp = MakePopUp(kind, dialog);
    Add(listing, type + ", " + name, describer.Describe(*popUp, [&] { Open(*popUp); }), code);
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
    for (const CModelInfo2& model : EveryModel()) AddPages(listing, model);
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
