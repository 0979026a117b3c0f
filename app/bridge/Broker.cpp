#include "app/bridge/Broker.h"

#include <algorithm>
#include <mosquitto.h>
#include <utility>

#include <QFileInfo>

namespace {

using std::chrono::milliseconds;

constexpr milliseconds kFirstPause{500};
constexpr milliseconds kLongestPause{30'000};
constexpr int kKeepAlive = 20;  // seconds
constexpr int kWait = 1000;     // milliseconds
constexpr int kExactlyOnce = 2;
constexpr int kAtLeastOnce = 1;
constexpr unsigned kAtOnce = 200;
constexpr const char* kSystemAuthorities = "/etc/ssl/certs";

struct Library {
  Library() { mosquitto_lib_init(); }
  ~Library() { mosquitto_lib_cleanup(); }
  Library(const Library&) = delete;
  Library& operator=(const Library&) = delete;
};

mosquitto* MakeClient(void* owner) {
  static const Library kLibrary;
  return mosquitto_new(nullptr, true, owner);
}

QString ErrorText(int code) { return QString::fromUtf8(mosquitto_strerror(code)); }

/// Of MQTT 3.1.1 below 128, of MQTT 5 from there on.
QString RefusalText(int code) {
  constexpr int kOfVersion5 = 128;
  return QString::fromUtf8(code < kOfVersion5 ? mosquitto_connack_string(code)
                                              : mosquitto_reason_string(code));
}

const char* OrNull(const QByteArray& text) { return text.isEmpty() ? nullptr : text.constData(); }

}  // namespace

Broker::Broker(const BrokerAddress& address, const std::optional<BrokerMessage>& will,
               Listener listener)
    : address_(address),
      listener_(std::move(listener)),
      client_(MakeClient(this), mosquitto_destroy),
      error_(Configure(address, will)) {
  if (!error_.isEmpty()) return;
  SetCallbacks();
  thread_ = std::thread([this] { Run(); });
}

Broker::~Broker() {
  if (!thread_.joinable()) return;
  {
    const std::lock_guard lock(mutex_);
    isEnding_ = true;
  }
  ends_.notify_all();
  mosquitto_disconnect(client_.get());
  thread_.join();
}

QString Broker::Configure(const BrokerAddress& address, const std::optional<BrokerMessage>& will) {
  if (!client_) return ErrorText(MOSQ_ERR_NOMEM);
  mosquitto* const client = client_.get();
  for (const QByteArray& file : {address.caFile, address.certFile, address.keyFile}) {
    if (!file.isEmpty() && !QFileInfo(QString::fromUtf8(file)).isReadable()) {
      return QStringLiteral("cannot read %1").arg(QString::fromUtf8(file));
    }
  }
  mosquitto_threaded_set(client, true);
  mosquitto_int_option(client, MOSQ_OPT_PROTOCOL_VERSION, address.version);
  mosquitto_max_inflight_messages_set(client, kAtOnce);
  int code = MOSQ_ERR_SUCCESS;
  if (!address.user.isEmpty()) {
    code = mosquitto_username_pw_set(client, address.user.constData(), OrNull(address.password));
  }
  if (code == MOSQ_ERR_SUCCESS && address.usesTls) {
    const bool hasCa = !address.caFile.isEmpty();
    code = mosquitto_tls_set(client, OrNull(address.caFile), hasCa ? nullptr : kSystemAuthorities,
                             OrNull(address.certFile), OrNull(address.keyFile), nullptr);
  }
  if (code == MOSQ_ERR_SUCCESS && will) {
    code =
        mosquitto_will_set(client, will->topic.constData(), static_cast<int>(will->payload.size()),
                           will->payload.constData(), kAtLeastOnce, will->isRetained);
  }
  return code == MOSQ_ERR_SUCCESS ? QString() : ErrorText(code);
}

void Broker::SetCallbacks() {
  mosquitto* const client = client_.get();
  mosquitto_connect_callback_set(client, [](mosquitto*, void* owner, int code) {
    auto* const self = static_cast<Broker*>(owner);
    if (code != 0) {
      self->refusal_ = code;  // the broker closes the connection
      return;
    }
    self->isConnected_ = true;
    self->QueueCall(self->listener_.connected);
  });
  mosquitto_subscribe_callback_set(
      client, [](mosquitto*, void* owner, int number, int, const int*) {
        auto* const self = static_cast<Broker*>(owner);
        self->QueueCall([self, number] { self->listener_.subscribed(number); });
      });
  mosquitto_publish_callback_set(client, [](mosquitto*, void* owner, int number) {
    auto* const self = static_cast<Broker*>(owner);
    self->QueueCall([self, number] { self->listener_.sent(number); });
  });
  mosquitto_message_callback_set(
      client, [](mosquitto*, void* owner, const mosquitto_message* message) {
        auto* const self = static_cast<Broker*>(owner);
        BrokerMessage taken{
            .topic = message->topic,
            .payload = QByteArray(static_cast<const char*>(message->payload), message->payloadlen),
            .isRetained = message->retain};
        self->QueueCall([self, taken = std::move(taken)] { self->listener_.received(taken); });
      });
}

void Broker::Run() {
  const QByteArray host = address_.host.toUtf8();
  for (milliseconds pause = kFirstPause;; pause = std::min(pause * 2, kLongestPause)) {
    refusal_ = 0;
    int code = mosquitto_connect(client_.get(), host.constData(), address_.port, kKeepAlive);
    {
      // Ending the connection had no effect if it was requested before the connection existed.
      const std::lock_guard lock(mutex_);
      if (isEnding_) return;
    }
    while (code == MOSQ_ERR_SUCCESS) code = mosquitto_loop(client_.get(), kWait, 1);
    if (isConnected_.exchange(false)) pause = kFirstPause;
    std::unique_lock lock(mutex_);
    if (isEnding_) return;
    const QString reason = refusal_ == 0 ? ErrorText(code) : RefusalText(refusal_);
    QueueCall([this, reason] { listener_.disconnected(reason); });
    if (ends_.wait_for(lock, pause, [this] { return isEnding_; })) return;
  }
}

void Broker::QueueCall(std::function<void()> what) {
  QMetaObject::invokeMethod(&context_, std::move(what), Qt::QueuedConnection);
}

std::optional<int> Broker::Subscribe(const QByteArray& topic) {
  int number = 0;
  const int code = mosquitto_subscribe(client_.get(), &number, topic.constData(), kExactlyOnce);
  return code == MOSQ_ERR_SUCCESS ? std::optional(number) : std::nullopt;
}

std::optional<int> Broker::Publish(const BrokerMessage& message) {
  int number = 0;
  const int code = mosquitto_publish(client_.get(), &number, message.topic.constData(),
                                     static_cast<int>(message.payload.size()),
                                     message.payload.constData(), kAtLeastOnce, message.isRetained);
  return code == MOSQ_ERR_SUCCESS ? std::optional(number) : std::nullopt;
}
