#include "app/bridge/MetricsListener.h"

#include <memory>
#include <utility>

#include <QTcpSocket>
#include <QTimer>

MetricsListener::MetricsListener(Answering answering, std::chrono::milliseconds longest)
    : answering_(std::move(answering)), longest_(longest) {
  QObject::connect(&server_, &QTcpServer::newConnection, &server_, [this] { Accept(); });
}

MetricsListener::Listening MetricsListener::Listen(const QHostAddress& address, quint16 port) {
  if (!server_.listen(address, port)) return {.error = server_.errorString()};
  return {.port = server_.serverPort()};
}

void MetricsListener::Accept() {
  while (QTcpSocket* const client = server_.nextPendingConnection()) {
    if (clients_ == kMostClients) {
      client->abort();
      client->deleteLater();
      continue;
    }
    ++clients_;
    client->setReadBufferSize(HttpRequest::kLongest);
    QObject::connect(client, &QTcpSocket::disconnected, &server_, [this, client] {
      --clients_;
      client->deleteLater();
    });
    QTimer::singleShot(longest_, client, [client] { client->abort(); });
    const auto read = [this, client, request = std::make_shared<HttpRequest>()] {
      const QByteArray bytes = client->readAll();
      if (request->IsComplete()) return;
      request->Take({bytes.data(), static_cast<std::size_t>(bytes.size())});
      if (!request->IsComplete()) return;
      Answer answer{.status = request->Status()};
      if (answer.status == 200) answer = answering_(*request);
      client->write(HttpAnswerHead(answer.status, answer.body.size()));
      // Not copied, for it may be large.
      if (!request->IsHead()) client->write(answer.body);
      client->disconnectFromHost();
    };
    QObject::connect(client, &QTcpSocket::readyRead, client, read);
    if (client->bytesAvailable() > 0) read();
  }
}
