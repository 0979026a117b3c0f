#include "app/desktop/simulation/LoopbackService.h"

#include <utility>

#include <QHostAddress>

#include "simulator/PjLinkServer.h"
#include "simulator/WireServer.h"

namespace {

constexpr const char* kAddress = "127.0.0.1";

PjLinkServer::Options OptionsOf(const FleetProfile& profile) {
  PjLinkServer::Options options;
  options.served.inputs = InputsOf(profile.model->info.MySourceList);
  options.served.texts["NAME"] = profile.name;
  options.served.texts["INF2"] = profile.model->info.ModelName;
  return options;
}

}  // namespace

struct LoopbackService::Service {
  Service(const std::shared_ptr<FaultChannel>& channel, const PjLinkServer::Options& options)
      : wire(channel), pjLink(channel, options) {}

  void SetFault(const LineFault& fault) {
    wire.SetFault(fault);
    pjLink.SetFault(fault);
  }

  WireServer wire;
  PjLinkServer pjLink;
};

LoopbackService::LoopbackService(QObject* parent) : QObject(parent), context_(new QObject) {
  context_->moveToThread(&thread_);
  connect(&thread_, &QThread::finished, context_, &QObject::deleteLater);
  thread_.start();
}

LoopbackService::~LoopbackService() {
  Run([this] {
    services_.clear();
    thread_.quit();
  });
  thread_.wait();
}

void LoopbackService::Run(std::function<void()> work) {
  QMetaObject::invokeMethod(context_, std::move(work), Qt::QueuedConnection);
}

void LoopbackService::Serve(const std::string& id, const ProjectorSession& session) {
  if (count_ == kMost) return;
  ++count_;
  Run([this, id, channel = session.Served(), line = session.ServedLine(),
       options = OptionsOf(session.Profile())] {
    auto service = std::make_unique<Service>(channel, options);
    service->SetFault(line);
    FleetWatch::Served served;
    served.wirePort = service->wire.Listen(QHostAddress(QString::fromLatin1(kAddress)), 0);
    if (service->pjLink.Listen(kAddress, 0))
      served.pjLinkPort = static_cast<std::uint16_t>(service->pjLink.Port());
    services_[id] = std::move(service);
    if (served.wirePort == 0 || served.pjLinkPort == 0) return;  // no file is left: not watched
    QMetaObject::invokeMethod(
        this, [this, id, served] { Q_EMIT Ready(id, served); }, Qt::QueuedConnection);
  });
}

void LoopbackService::Stop(const std::string& id) {
  --count_;
  Run([this, id] { services_.erase(id); });
}

void LoopbackService::Update(const std::string& id, const ProjectorSession& session) {
  Run([this, id, line = session.ServedLine()] {
    if (const auto found = services_.find(id); found != services_.end())
      found->second->SetFault(line);
  });
}
