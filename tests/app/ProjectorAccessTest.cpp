// What a command asks a PJLink projector, and what the next command does not ask again.

#include <QDir>

#include "app/profiles/ProjectorAccess.h"
#include "device/channels/TcpChannel.h"
#include "tests/device/BadProjector.h"
#include "tests/device/Peer.h"
#include "tests/support/Programs.h"
#include "tests/support/Texts.h"

namespace {

/// Serves the projector at a port.
Peer::Behaviour Serving(BadProjector& projector) {
  return [&projector](Peer::End& end) {
    using Clock = std::chrono::steady_clock;
    if (!projector.Connect(Clock::now())) return;
    Peer::AnswersLines(projector.greeting, [&projector](const std::string& line) {
      return projector.Receive(line, Clock::now()).value_or("");
    })(end);
    projector.Close(Clock::now());
  };
}

FleetProfile ProfileOf(int dialogType, int modelCode) {
  auto model = std::make_shared<ProfileModel>();
  model->data.DialogType = dialogType;
  model->data.ModelCode = modelCode;
  return {.name = "Any", .model = std::move(model), .connection = {}};
}

class PjLinkAccess : public testing::Test {
 protected:
  PjLinkAccess() { qputenv("XDG_CACHE_HOME", folder_.path().toUtf8()); }
  ~PjLinkAccess() override { qunsetenv("XDG_CACHE_HOME"); }

  /// The commands that the projector receives while `use` runs.
  std::string Asked(const std::function<void(ProjectorAccess&)>& use) {
    projector_.requests.clear();
    const int before = projector_.connections;
    {
      ProjectorAccess access(ProfileOf(4, 24),
                             std::make_shared<PjLinkChannel>("127.0.0.1", peer_.port, "", kLimits),
                             kLimits.answer);
      use(access);
    }
    peer_.Finish(++finished_);
    connections_ = projector_.connections - before;
    return projector_.TakeRequests();
  }
  static std::string InputName(ProjectorAccess& access) {
    const ModelSetting& input = *access.Settings().Find("status.input-source");
    const auto value = access.Settings().Read(access.Connection(), input);
    return value ? Texts().Value(input, *value) : "";
  }
  QString CacheFile() const {
    const QDir cache(folder_.filePath("advanced-control/pjlink"));
    const QStringList files = cache.entryList(QDir::Files);
    return files.size() == 1 ? cache.filePath(files.front()) : QString();
  }

  static constexpr PjLinkChannel::Limits kLimits{.connect = std::chrono::seconds(20),
                                                 .answer = std::chrono::seconds(20)};
  const QTemporaryDir folder_;
  BadProjector projector_;
  int connections_ = 0;  ///< Number of connections of the last `Asked`.
  int finished_ = 0;
  Peer peer_{Transport::Tcp, {Serving(projector_)}};
};

TEST_F(PjLinkAccess, AsksOnlyWhatTheCommandNeedsAndRemembersTheModel) {
  const auto showsInput = [](ProjectorAccess& access) {
    access.AskForInputs(InputsNeeded::Present);
    EXPECT_EQ(InputName(access), "HDMI (31)");
  };
  const auto listsInputs = [](ProjectorAccess& access) {
    access.AskForInputs(InputsNeeded::All);
    EXPECT_EQ(access.Settings().Model().MySourceList,
              SourcesOf({{31, "HDMI"}, {32, "HDMI"}, {510, "Office"}}, InputCodes::AllNames));
    EXPECT_FALSE(access.LacksInputs());
    EXPECT_TRUE(
        access.Settings().Read(access.Connection(), *access.Settings().Find("status.power")));
  };
  EXPECT_EQ(Asked(showsInput), "CLSS, INPT, INNM ?31");
  EXPECT_EQ(connections_, 1);
  EXPECT_EQ(Asked(showsInput), "INPT, INNM ?31");
  EXPECT_EQ(Asked(listsInputs), "INST, INNM ?31, INNM ?32, INNM ?5A, POWR");
  EXPECT_EQ(Asked(listsInputs), "POWR");
  for (const char* const damaged : {"", "{\"version\": 1}", "\xFF{[", "{\"version\": 2}"}) {
    Write(CacheFile(), damaged);
    EXPECT_EQ(Asked(showsInput), "CLSS, INPT, INNM ?31") << damaged;
  }
  const std::pair<const char*, QByteArray> damages[] = {
      {"\"asked\": ", "\"asked\": 9"},
      {"\"2\"", "\"3\""},
      {"\"31\"", "\"x\""},
      {"\"HDMI\"", "\"\""},
      {"\"HDMI\"", '"' + QByteArray(513, 'x') + '"'},
      {"[", '[' + QByteArray(R"({"code": "31", "name": "A"},)").repeated(32)}};
  for (const auto& [part, instead] : damages) {
    EXPECT_TRUE(QFile::remove(CacheFile()));
    Asked(listsInputs);
    Write(CacheFile(), Contents(CacheFile()).replace(part, instead));
    EXPECT_EQ(Asked(showsInput), "CLSS, INPT, INNM ?31") << instead.left(40).data();
  }
  EXPECT_TRUE(QFile::remove(CacheFile()));
  EXPECT_EQ(Asked(listsInputs), "CLSS, INST, INNM ?31, INNM ?32, INNM ?5A, POWR");
  Write(CacheFile(), Contents(CacheFile()).replace("\"asked\": ", "\"asked\": 1, \"was\": "));
  EXPECT_EQ(Asked(showsInput), "CLSS, INPT, INNM ?31") << "too old";
  Asked(listsInputs);
  const QByteArray kept = Contents(CacheFile());
  projector_.facts = {{"CLSS", "1"}};
  projector_.states["INPT"] = "11";
  Asked([](ProjectorAccess& access) { access.AskForInputs(InputsNeeded::Present); });
  EXPECT_EQ(Contents(CacheFile()), kept) << "no list in place of one";
}

TEST_F(PjLinkAccess, ReportsInputsThatCouldNotBeRead) {
  projector_.distorts["INST"] = 99;
  Asked([](ProjectorAccess& access) {
    access.AskForInputs();
    EXPECT_TRUE(access.LacksInputs());
    EXPECT_FALSE(access.Channel().IsGone());
  });
}

struct Silent final : ProjectorChannel {
  PjtReply Execute(const PjtCommand&) override { return {.answered = false}; }
};

TEST(PjLinkAccessToNobody, EndsAfterOneTimeOut) {
  constexpr PjLinkChannel::Limits kShort{.connect = std::chrono::milliseconds(100)};
  const auto channel = std::make_shared<PjLinkChannel>("127.0.0.1", 1, "", kShort);
  ProjectorAccess access(ProfileOf(0, 0), channel, kShort.connect);
  access.AskForInputs();
  EXPECT_TRUE(access.Channel().IsGone() && access.LacksInputs());
  EXPECT_EQ(access.StepUnread(*access.Settings().Find("status.power"), 2, [] { return true; }), 0);
  const auto nobody = std::make_shared<TcpChannel>("127.0.0.1", 1);
  ProjectorAccess other(ProfileOf(0, 0), nobody, kShort.connect);
  EXPECT_TRUE(other.Connection().Execute({PjtOperation::Inc, 0x2001}).unsent);
  EXPECT_TRUE(other.Channel().IsGone()) << "it was never there";
  ProjectorAccess simulated(ProfileOf(0, 0), std::make_shared<Silent>(), kShort.connect);
  EXPECT_FALSE(simulated.Connection().Execute({PjtOperation::Inc, 0x2001}).answered);
  EXPECT_TRUE(simulated.Channel().IsGone()) << "nor was this one";
}

}  // namespace
