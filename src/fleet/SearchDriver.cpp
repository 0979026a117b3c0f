#include "fleet/SearchDriver.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <string_view>
#include <utility>

#include <QDeadlineTimer>
#include <QTcpSocket>

#include "device/ConnectionState.h"
#include "fleet/AddressHold.h"
#include "fleet/MakeVisit.h"
#include "fleet/NameResolver.h"

namespace AdvancedControl {

namespace {

constexpr int kPace = 20;  // milliseconds
constexpr auto kSecondBroadcast = std::chrono::milliseconds(500);
constexpr int kLongestAnswer = 128;
constexpr qint64 kReadBuffer = 8192;

}  // namespace

std::vector<QHostAddress> BroadcastsOf(const std::vector<MachineNetwork>& networks) {
  std::vector<QHostAddress> broadcasts;
  for (const MachineNetwork& network : networks) {
    if (!network.flags.testFlag(QNetworkInterface::IsUp) ||
        !network.flags.testFlag(QNetworkInterface::CanBroadcast)) {
      continue;
    }
    for (const QNetworkAddressEntry& entry : network.addresses) {
      const QHostAddress broadcast = entry.broadcast();
      if (!broadcast.isNull() && std::ranges::find(broadcasts, broadcast) == broadcasts.end()) {
        broadcasts.push_back(broadcast);
      }
    }
  }
  return broadcasts;
}

std::vector<QHostAddress> NetworkBroadcasts() {
  std::vector<MachineNetwork> networks;
  for (const QNetworkInterface& network : QNetworkInterface::allInterfaces()) {
    networks.push_back({network.flags(), network.addressEntries()});
  }
  return BroadcastsOf(networks);
}

/// The host names that are looked up while projectors are asked, and the projectors that wait for
/// the end of it.
struct SearchDriver::LookUps {
  explicit LookUps(const SearchOptions& options)
      : pause(options.lookUps), missing(options.hostNames.begin(), options.hostNames.end()) {
    for (const std::string& name : missing) resolver.LookUp(0, name);
    end.setRemainingTime(pause);
  }

  void Take() {
    for (const NameResolver::Found& found : resolver.Take()) {
      missing.erase(found.name);
      end.setRemainingTime(pause);
      for (const SocketAddress& address : found.addresses) {
        names[TextOf(address)].push_back(found.name);
      }
    }
  }
  bool IsOver() const { return missing.empty() || end.hasExpired(); }

  const std::chrono::milliseconds pause;
  std::set<std::string> missing;
  std::map<std::string, std::vector<std::string>> names{};  // by address
  std::vector<FoundProjector> held{};
  NameResolver resolver{NameResolver::kNoFile};
  QDeadlineTimer end;
};

/// One inquiry with its connection.
class SearchDriver::Visit {
 public:
  Visit(SearchDriver& driver, FoundProjector found)
      : driver_(driver),
        inquiry_(std::move(found), driver.options_.password, driver.options_.limits),
        hold_(PlaceOf({.id = {}, .address = AddressOfFound()}), AddressHold::Turn::Last, [this] {
          QMetaObject::invokeMethod(
              &timer_, [this] { Drive(); }, Qt::QueuedConnection);
        }) {
    timer_.setSingleShot(true);
    QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] { Drive(); });
  }
  ~Visit() { Drop(); }
  Visit(const Visit&) = delete;
  Visit& operator=(const Visit&) = delete;

  const SearchInquiry& Inquiry() const { return inquiry_; }
  void Drive();

 private:
  static PjLinkTime Now() { return std::chrono::steady_clock::now(); }
  PjLinkAddress AddressOfFound() const {
    return {.host = inquiry_.Found().address, .port = inquiry_.Found().port, .password = {}};
  }
  void Connect();
  void Drop();

  SearchDriver& driver_;
  SearchInquiry inquiry_;
  QTimer timer_;
  QTcpSocket* socket_ = nullptr;  // deletes itself later, as it may be calling us
  const AddressHold hold_;        // the visit begins when it has the address
};

void SearchDriver::Visit::Drive() {
  for (;;) {
    const PjLinkStep step = inquiry_.Next(Now());
    switch (step.kind) {
      case PjLinkStep::Kind::Finished:
        timer_.stop();
        Drop();
        return driver_.End(this);
      case PjLinkStep::Kind::Connect:
        Connect();
        break;
      case PjLinkStep::Kind::Send:
        // unreachable: the inquiry sends only while it is connected
        if (socket_) socket_->write(step.bytes.data(), static_cast<qint64>(step.bytes.size()));
        break;
      case PjLinkStep::Kind::Close:
        Drop();
        break;
      case PjLinkStep::Kind::Wait:
        const auto wait = std::chrono::ceil<std::chrono::milliseconds>(step.until - Now());
        return timer_.start(std::max(wait, std::chrono::milliseconds(0)));
    }
    if (step.kind != PjLinkStep::Kind::Connect) continue;
    // The connection itself has a time too.
    const auto wait = std::chrono::ceil<std::chrono::milliseconds>(step.until - Now());
    return timer_.start(std::max(wait, std::chrono::milliseconds(0)));
  }
}

void SearchDriver::Visit::Connect() {
  Drop();
  socket_ = new QTcpSocket;
  socket_->setReadBufferSize(kReadBuffer);
  const auto hear = [this](auto signal, auto action) {
    QObject::connect(socket_, signal, &timer_, [this, action] {
      action();
      Drive();
    });
  };
  hear(&QTcpSocket::connected, [this] { inquiry_.Connection().Connected(); });
  hear(&QTcpSocket::readyRead,
       [this] { inquiry_.Connection().Received(socket_->readAll().toStdString(), Now()); });
  QObject::connect(socket_, &QTcpSocket::errorOccurred, &timer_, [this] {
    const bool wasOpen = socket_->error() == QAbstractSocket::RemoteHostClosedError;
    Drop();
    if (wasOpen) {
      inquiry_.Connection().Closed(Now());
    } else {
      inquiry_.Connection().NotConnected(ConnectionState::NotReachable, Now());
    }
    Drive();
  });
  const FoundProjector& at = inquiry_.Found();
  socket_->connectToHost(QHostAddress(QString::fromStdString(at.address)), at.port);
}

void SearchDriver::Visit::Drop() {
  if (!socket_) return;
  QTcpSocket* const socket = std::exchange(socket_, nullptr);
  socket->disconnect(&timer_);
  socket->abort();
  socket->deleteLater();
}

SearchDriver::SearchDriver(SearchOptions options,
                           std::function<void(const FoundProjector&)> onFound,
                           std::function<void()> onFinished)
    : options_(std::move(options)),
      onFound_(std::move(onFound)),
      onFinished_(std::move(onFinished)),
      lookUps_(std::make_unique<LookUps>(options_)) {
  QObject::connect(&pace_, &QTimer::timeout, &context_, [this] { BeginVisits(); });
  listening_.setSingleShot(true);
}

SearchDriver::~SearchDriver() = default;

void SearchDriver::Start() {
  for (const QHostAddress& address : options_.addresses) Enqueue(address, {});
  if (!options_.broadcasts.empty()) {
    datagrams_ = std::make_unique<QUdpSocket>();
    if (!datagrams_->bind(QHostAddress(QHostAddress::AnyIPv4), options_.answerPort) &&
        !datagrams_->bind(QHostAddress(QHostAddress::AnyIPv4))) {
      problem_ = datagrams_->errorString();
    }
    QObject::connect(datagrams_.get(), &QUdpSocket::readyRead, &context_,
                     [this] { TakeAnswers(); });
    listening_.start(options_.answers);
    Broadcast();
    // Datagrams get lost.
    QTimer::singleShot(kSecondBroadcast, &context_, [this] { Broadcast(); });
  }
  pace_.start(kPace);
}

void SearchDriver::Broadcast() {
  for (const QHostAddress& address : options_.broadcasts) {
    const auto sent = datagrams_->writeDatagram(kSearchQuestion.data(),
                                                static_cast<qint64>(kSearchQuestion.size()),
                                                address, options_.port);
    if (sent < 0) problem_ = datagrams_->errorString();
  }
}

void SearchDriver::TakeAnswers() {
  while (datagrams_->hasPendingDatagrams()) {
    std::array<char, kLongestAnswer> text{};
    QHostAddress from;
    const qint64 size = datagrams_->readDatagram(text.data(), text.size(), &from);
    if (size < 0) return;
    const auto mac = ParseSearchAnswer({text.data(), static_cast<std::size_t>(size)});
    if (mac && listening_.isActive()) Enqueue(from, *mac);
  }
}

void SearchDriver::Enqueue(const QHostAddress& address, const std::string& mac) {
  const std::string text = address.toString().toStdString();
  if (!known_.contains(address)) {
    known_.insert(address);
    waiting_.push_back({.address = text, .port = options_.port, .mac = mac});
    return;
  }
  // The same address may also be in a range.
  const auto waiting = std::ranges::find(waiting_, text, &FoundProjector::address);
  if (waiting != waiting_.end() && waiting->mac.empty()) waiting->mac = mac;
}

void SearchDriver::BeginVisits() {
  lookUps_->Take();
  ReportFound();
  constexpr double kMilliseconds = 1000;
  allowance_ = std::min(allowance_ + options_.perSecond * kPace / kMilliseconds,
                        std::max(1.0, options_.perSecond * kPace / kMilliseconds));
  while (allowance_ >= 1 && !waiting_.empty() &&
         visits_.size() < static_cast<std::size_t>(options_.atOnce)) {
    --allowance_;
    visits_.push_back(std::make_unique<Visit>(*this, std::move(waiting_.front())));
    waiting_.pop_front();
  }
  const bool isAsking = !waiting_.empty() || !visits_.empty() || listening_.isActive();
  if (isAsking || !lookUps_->IsOver()) return;
  if (!lookUps_->missing.empty()) {
    problem_ = QString::fromStdString(*lookUps_->missing.begin() + ": ") +
               ConnectionStateText(ConnectionState::NameUnknown).data();
  }
  pace_.stop();
  onFinished_();
}

void SearchDriver::End(Visit* visit) {
  const auto ended = std::ranges::find(visits_, visit, &std::unique_ptr<Visit>::get);
  // The caller may still be using it.
  std::shared_ptr<Visit> kept(std::move(*ended));
  visits_.erase(ended);
  ++done_;
  if (kept->Inquiry().HasFound()) {
    lookUps_->held.push_back(kept->Inquiry().Found());
    ReportFound();
  }
  QTimer::singleShot(0, &context_, [kept] {});
}

void SearchDriver::ReportFound() {
  if (!lookUps_->IsOver()) return;
  for (FoundProjector& found : std::exchange(lookUps_->held, {})) {
    if (const auto names = lookUps_->names.find(found.address); names != lookUps_->names.end()) {
      found.hostNames = names->second;
    }
    onFound_(found);
  }
}

}  // namespace AdvancedControl
