#include "app/bridge/MetricsService.h"

#include <utility>

#include <QFile>
#include <QFileInfo>

#include "app/bridge/Log.h"
#include "fleet/WholeFile.h"

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::chrono::seconds kFirstWriting{2};
constexpr std::chrono::seconds kWriting{15};
constexpr std::chrono::milliseconds kRendered{500};
constexpr int kNotFound = 404;
constexpr int kUnavailable = 503;

}  // namespace

MetricsService::MetricsService(const BridgeFleet& fleet, Counting count)
    : fleet_(fleet),
      count_(std::move(count)),
      listener_([this](const HttpRequest& request) { return AnswerRequest(request); }) {
  QObject::connect(&writing_, &QTimer::timeout, &writing_, [this] { Write(); });
}

MetricsService::~MetricsService() {
  // A collector would go on serving the last metrics. The file may lie behind a link.
  const QFileInfo file(file_);
  if (file.isFile()) QFile::remove(file.canonicalFilePath());
}

QString MetricsService::Listen(const QHostAddress& address, quint16 port) {
  const auto listening = listener_.Listen(address, port);
  if (listening.port == 0) return listening.error;
  Log(QStringLiteral("serves metrics at port %1").arg(listening.port));
  return {};
}

QString MetricsService::WriteTo(const QString& file) {
  if (QString error = CheckWholeFile(file); !error.isEmpty()) return error;
  file_ = file;
  writing_.start(kWriting);
  QTimer::singleShot(kFirstWriting, &writing_, [this] { Write(); });
  return {};
}

const QByteArray& MetricsService::AllMetrics() {
  if (const auto now = Clock::now(); rendered_.isEmpty() || now - renderedAt_ > kRendered) {
    const BridgeCounts counts = count_();
    MetricsText text;
    if (counts.holdsShare) AddProjectors(text, fleet_.States());
    AddBridge(text, counts);
    rendered_ = text.Text();
    renderedAt_ = now;
  }
  return rendered_;
}

QByteArray MetricsService::Probe(std::size_t projector) const {
  MetricsText text;
  const MeasuredProjector measured{&fleet_.Projectors().Profile(projector),
                                   fleet_.State(projector)};
  AddProjectors(text, {&measured, 1});
  return text.Text();
}

MetricsListener::Answer MetricsService::AnswerRequest(const HttpRequest& request) {
  if (request.Path() == "/metrics") return {.body = AllMetrics()};
  if (request.Path() == "/healthz") return {.body = "ok\n"};
  if (request.Path() != "/probe") {
    return {kNotFound, "Only /metrics, /probe?target=NAME and /healthz are here.\n"};
  }
  const QByteArray target = request.Parameter("target");
  const auto projector = fleet_.Projectors().FindName(target.toStdString());
  if (!projector) return {kNotFound, "This share has no projector of that name.\n"};
  // What it knew before is not true for long.
  if (!count_().holdsShare) return {kUnavailable, "The bridge does not have its share.\n"};
  return {.body = Probe(*projector)};
}

void MetricsService::Write() {
  const QString error = WriteWholeFile(file_, AllMetrics());
  if (!error.isEmpty() && !failedToWrite_) Log(error);
  failedToWrite_ = !error.isEmpty();
}
