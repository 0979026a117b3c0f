#include "app/desktop/simulation/LoopbackService.h"

#include <chrono>
#include <netinet/in.h>
#include <unistd.h>
#include <utility>

#include <QHostAddress>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

#include "app/profiles/LoopbackSocket.h"
#include "simulator/PjLinkServer.h"
#include "simulator/WireServer.h"

namespace {

constexpr std::uint32_t kFirstAddress = 0x7F400001;  // 127.64.0.1
constexpr std::chrono::milliseconds kPauseAfterFailure{100};

PjLinkServer::Options OptionsOf(const FleetProfile& profile) {
  PjLinkServer::Options options;
  options.served.inputs = InputsOf(profile.model->info.MySourceList);
  options.served.texts["NAME"] = profile.name;
  options.served.texts["INF2"] = profile.model->info.ModelName;
  return options;
}

/// 0 if it has none.
std::uint16_t PortOf(int socket) {
  sockaddr_in address{};
  socklen_t size = sizeof address;
  const bool isKnown = getsockname(socket, reinterpret_cast<sockaddr*>(&address), &size) == 0;
  return isKnown ? ntohs(address.sin_port) : std::uint16_t{0};
}

}  // namespace

struct LoopbackService::Service {
  Service(const std::shared_ptr<FaultChannel>& channel, const PjLinkServer::Options& options)
      : wire(channel), pjLink(channel, options) {}

  WireServer wire;
  PjLinkServer pjLink;
};

/// One of the two ports. A connection goes to the projector at the address that it was made to.
class LoopbackService::Port final : public QTcpServer {
 public:
  using Serve = void (*)(Service& service, std::unique_ptr<QTcpSocket> socket);

  Port(LoopbackService& all, int socket, Serve serve)
      : QTcpServer(all.context_), all_(all), serve_(serve) {
    if (!setSocketDescriptor(socket)) ::close(socket);
    connect(this, &QTcpServer::acceptError, this, [this] {  // Qt has stopped accepting
      QTimer::singleShot(kPauseAfterFailure, this, [this] { resumeAccepting(); });
    });
  }

 protected:
  void incomingConnection(qintptr descriptor) override {
    auto socket = std::make_unique<QTcpSocket>();
    if (!socket->setSocketDescriptor(descriptor)) {
      ::close(static_cast<int>(descriptor));
      return;
    }
    const auto service = all_.services_.find(socket->localAddress().toIPv4Address());
    if (service == all_.services_.end()) return socket->abort();
    serve_(*service->second, std::move(socket));
  }

 private:
  LoopbackService& all_;
  const Serve serve_;
};

LoopbackService::LoopbackService() : context_(new QObject), next_(kFirstAddress) {
  context_->moveToThread(&thread_);
  QObject::connect(&thread_, &QThread::finished, context_, &QObject::deleteLater);
}

LoopbackService::~LoopbackService() {
  thread_.start();  // unless it runs
  Run([this] {
    services_.clear();
    thread_.quit();
  });
  thread_.wait();
}

void LoopbackService::Run(std::function<void()> work) {
  QMetaObject::invokeMethod(context_, std::move(work), Qt::QueuedConnection);
}

// The ports are opened at once, so that their numbers are known.
bool LoopbackService::Listen() {
  if (wirePort_ != 0) return true;
  const int wire = LoopbackSocket::Listen(0);
  const int pjLink = LoopbackSocket::Listen(0);
  if (wire < 0 || pjLink < 0) {
    for (const int socket : {wire, pjLink})
      if (socket >= 0) close(socket);
    return false;
  }
  wirePort_ = PortOf(wire);
  pjLinkPort_ = PortOf(pjLink);
  Run([this, wire, pjLink] {
    new Port(*this, wire, [](Service& service, std::unique_ptr<QTcpSocket> socket) {
      service.wire.Serve(std::move(socket));
    });
    new Port(*this, pjLink, [](Service& service, std::unique_ptr<QTcpSocket> socket) {
      service.pjLink.Serve(std::move(socket));
    });
  });
  thread_.start();
  return true;
}

std::optional<FleetWatch::Served> LoopbackService::Serve(const std::string& id,
                                                         const ProjectorSession& session) {
  if (!Listen()) return {};
  const std::uint32_t address = next_++;
  addresses_[id] = address;
  Run([this, address, channel = session.Served(), options = OptionsOf(session.Profile())] {
    services_[address] = std::make_unique<Service>(channel, options);
  });
  Update(id, session);
  return FleetWatch::Served{.host = QHostAddress(address).toString().toStdString(),
                            .wirePort = wirePort_,
                            .pjLinkPort = pjLinkPort_};
}

void LoopbackService::Change(const std::string& id, std::function<void(Service&)> change) {
  const auto address = addresses_.find(id);
  if (address == addresses_.end()) return;
  Run([this, at = address->second, change = std::move(change)] {
    if (const auto found = services_.find(at); found != services_.end()) change(*found->second);
  });
}

void LoopbackService::Stop(const std::string& id) {
  const auto address = addresses_.find(id);
  if (address == addresses_.end()) return;
  Run([this, at = address->second] { services_.erase(at); });
  addresses_.erase(address);
}

void LoopbackService::Update(const std::string& id, const ProjectorSession& session) {
  Change(id, [line = session.ServedLine()](Service& service) {
    service.wire.SetFault(line);
    service.pjLink.SetFault(line);
  });
}
