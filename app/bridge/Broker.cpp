#include "app/bridge/Broker.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mosquitto.h>
#include <mutex>
#include <utility>

#include <QFileInfo>
#include <QObject>

namespace {

using std::chrono::milliseconds;

constexpr int kKeepAlive = 20;  // seconds
constexpr int kWait = 1000;     // milliseconds
constexpr int kExactlyOnce = 2;
constexpr int kAtLeastOnce = 1;
constexpr unsigned kAtOnce = 200;
constexpr const char* kSystemAuthorities = "/etc/ssl/certs";

std::atomic<int> threads = 0;

mosquitto* MakeClient(void* owner) {
  // A thread may still use the library when the program ends, so nothing cleans it up.
  [[maybe_unused]] static const int kInitialized = mosquitto_lib_init();
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

/// The client of the library, and what its thread does. The thread shares it, since a call that
/// connects ends only when the system gives up, which may be later than the `Broker`.
class Broker::Connection {
 public:
  Connection(const BrokerAddress& address, Listener listener)
      : address_(address),
        listener_(std::move(listener)),
        client_(MakeClient(this), mosquitto_destroy) {}

  QString Configure(const std::optional<BrokerMessage>& will);
  /// Connects, and stays connected as long as possible. Runs on a thread of its own.
  void Run();
  /// Tells the listener nothing more, and disconnects. Returns false if the thread is connecting:
  /// it then ends by itself some time.
  bool End();
  mosquitto* Client() const { return client_.get(); }

 private:
  void SetCallbacks();
  int Connect();
  void QueueCall(std::function<void()> what);

  const BrokerAddress address_;
  const Listener listener_;
  const std::unique_ptr<mosquitto, void (*)(mosquitto*)> client_;
  std::atomic<bool> isConnected_ = false;
  std::atomic<int> refusal_ = 0;  ///< What the broker said instead of connecting.

  std::mutex mutex_;  ///< Guards what follows.
  std::condition_variable ends_;
  bool isConnecting_ = false;
  std::unique_ptr<QObject> context_ = std::make_unique<QObject>();  ///< Null from the end on.
};

Broker::Broker(const BrokerAddress& address, const std::optional<BrokerMessage>& will,
               Listener listener)
    : connection_(std::make_shared<Connection>(address, std::move(listener))),
      error_(connection_->Configure(will)) {
  if (!error_.isEmpty()) return;
  ++threads;
  thread_ = std::thread([shared = connection_]() mutable {
    shared->Run();
    shared.reset();
    --threads;
  });
}

Broker::~Broker() {
  if (!thread_.joinable()) return;
  if (connection_->End()) {
    thread_.join();
  } else {
    thread_.detach();
  }
}

bool Broker::HasThreadLeft() { return threads > 0; }

std::optional<int> Broker::Subscribe(const QByteArray& topic) {
  return Subscribe(topic, kExactlyOnce);
}

std::optional<int> Broker::SubscribeAtOnce(const QByteArray& topic) {
  return Subscribe(topic, kAtLeastOnce);
}

std::optional<int> Broker::Subscribe(const QByteArray& topic, int quality) {
  int number = 0;
  const int code = mosquitto_subscribe(connection_->Client(), &number, topic.constData(), quality);
  return code == MOSQ_ERR_SUCCESS ? std::optional(number) : std::nullopt;
}

std::optional<int> Broker::Publish(const BrokerMessage& message) {
  int number = 0;
  const int code = mosquitto_publish(connection_->Client(), &number, message.topic.constData(),
                                     static_cast<int>(message.payload.size()),
                                     message.payload.constData(), kAtLeastOnce, message.isRetained);
  return code == MOSQ_ERR_SUCCESS ? std::optional(number) : std::nullopt;
}

QString Broker::Connection::Configure(const std::optional<BrokerMessage>& will) {
  if (!client_) return ErrorText(MOSQ_ERR_NOMEM);
  mosquitto* const client = client_.get();
  for (const QByteArray& file : {address_.caFile, address_.certFile, address_.keyFile}) {
    if (!file.isEmpty() && !QFileInfo(QString::fromUtf8(file)).isReadable()) {
      return QStringLiteral("cannot read %1").arg(QString::fromUtf8(file));
    }
  }
  mosquitto_threaded_set(client, true);
  mosquitto_int_option(client, MOSQ_OPT_PROTOCOL_VERSION, address_.version);
  mosquitto_max_inflight_messages_set(client, kAtOnce);
  int code = MOSQ_ERR_SUCCESS;
  if (!address_.user.isEmpty()) {
    code = mosquitto_username_pw_set(client, address_.user.constData(), OrNull(address_.password));
  }
  if (code == MOSQ_ERR_SUCCESS && address_.usesTls) {
    const bool hasCa = !address_.caFile.isEmpty();
    code = mosquitto_tls_set(client, OrNull(address_.caFile), hasCa ? nullptr : kSystemAuthorities,
                             OrNull(address_.certFile), OrNull(address_.keyFile), nullptr);
  }
  if (code == MOSQ_ERR_SUCCESS && will) {
    code =
        mosquitto_will_set(client, will->topic.constData(), static_cast<int>(will->payload.size()),
                           will->payload.constData(), kAtLeastOnce, will->isRetained);
  }
  if (code != MOSQ_ERR_SUCCESS) return ErrorText(code);
  SetCallbacks();
  return {};
}

void Broker::Connection::SetCallbacks() {
  mosquitto* const client = client_.get();
  mosquitto_connect_callback_set(client, [](mosquitto*, void* owner, int code) {
    auto* const self = static_cast<Connection*>(owner);
    if (code != 0) {
      self->refusal_ = code;  // the broker closes the connection
      return;
    }
    self->isConnected_ = true;
    self->QueueCall(self->listener_.connected);
  });
  mosquitto_subscribe_callback_set(
      client, [](mosquitto*, void* owner, int number, int, const int*) {
        auto* const self = static_cast<Connection*>(owner);
        self->QueueCall([self, number] { self->listener_.subscribed(number); });
      });
  mosquitto_publish_callback_set(client, [](mosquitto*, void* owner, int number) {
    auto* const self = static_cast<Connection*>(owner);
    self->QueueCall([self, number] { self->listener_.sent(number); });
  });
  mosquitto_message_callback_set(
      client, [](mosquitto*, void* owner, const mosquitto_message* message) {
        auto* const self = static_cast<Connection*>(owner);
        BrokerMessage taken{
            .topic = message->topic,
            .payload = QByteArray(static_cast<const char*>(message->payload), message->payloadlen),
            .isRetained = message->retain};
        self->QueueCall([self, taken = std::move(taken)] { self->listener_.received(taken); });
      });
}

bool Broker::Connection::End() {
  {
    const std::lock_guard lock(mutex_);
    context_.reset();
    if (isConnecting_) return false;
  }
  ends_.notify_all();
  mosquitto_disconnect(client_.get());
  return true;
}

int Broker::Connection::Connect() {
  refusal_ = 0;
  const int code = mosquitto_connect(client_.get(), address_.host.toUtf8().constData(),
                                     address_.port, kKeepAlive);
  const std::lock_guard lock(mutex_);
  isConnecting_ = false;
  // Good-bye, so that the will is not sent.
  if (!context_ && code == MOSQ_ERR_SUCCESS) mosquitto_disconnect(client_.get());
  return code;
}

void Broker::Connection::Run() {
  std::unique_lock lock(mutex_);
  for (milliseconds pause = kFirstPause; context_; pause = std::min(pause * 2, kLongestPause)) {
    isConnecting_ = true;
    lock.unlock();
    int code = Connect();
    while (code == MOSQ_ERR_SUCCESS) code = mosquitto_loop(client_.get(), kWait, 1);
    const QString reason = refusal_ == 0 ? ErrorText(code) : RefusalText(refusal_);
    QueueCall([this, reason] { listener_.disconnected(reason); });
    if (isConnected_) return;
    lock.lock();
    ends_.wait_for(lock, pause, [this] { return !context_; });
  }
}

void Broker::Connection::QueueCall(std::function<void()> what) {
  const std::lock_guard lock(mutex_);
  if (context_) QMetaObject::invokeMethod(context_.get(), std::move(what), Qt::QueuedConnection);
}
