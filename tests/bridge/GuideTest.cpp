// The commands of the guide, up to the mail.

#include <gmock/gmock.h>
#include <map>
#include <vector>

#include <QRegularExpression>

#include "tests/bridge/Daemons.h"

namespace {

using testing::HasSubstr;

/// A mail server that keeps what it gets.
struct MailServer {
  MailServer() {
    EXPECT_TRUE(server.listen(QHostAddress::LocalHost));
    QObject::connect(&server, &QTcpServer::newConnection, &server, [this] {
      QTcpSocket* const client = server.nextPendingConnection();
      client->write("220 mail\r\n");
      QObject::connect(
          client, &QTcpSocket::readyRead, client, [this, client, isMail = false]() mutable {
            while (client->canReadLine()) {
              const QByteArray line = client->readLine();
              if (isMail) {
                mails += line;
                if (line == ".\r\n") isMail = false, client->write("250 ok\r\n");
              } else if (line.toUpper().startsWith("DATA")) {
                isMail = true;
                client->write("354 go on\r\n");
              } else {
                client->write(line.toUpper().startsWith("QUIT") ? "221 bye\r\n" : "250 ok\r\n");
              }
            }
          });
    });
  }

  QByteArray mails;
  QTcpServer server;
};

/// The guide's commands, with free ports and in a hurry.
std::vector<QByteArray> Commands(const std::map<QByteArray, QByteArray>& replaced) {
  const QByteArray guide = Contents(QStringLiteral(TEST_SOURCE_DIR "/../docs/bridge.md"));
  const auto begin = guide.indexOf("## Ten minutes");
  QByteArray part = guide.mid(begin, guide.indexOf("\n## ", begin) - begin);
  // By way of marks, since a port may hold the digits of another.
  char mark = '\x0e';
  for (const auto& [from, to] : replaced) {
    EXPECT_TRUE(part.contains(from)) << from.data();
    part.replace(from, QByteArray(1, mark++));
  }
  for (mark = '\x0e'; const auto& [from, to] : replaced) part.replace(mark++, to);
  std::vector<QByteArray> blocks;
  const QRegularExpression block("```sh\n(.*?)```", QRegularExpression::DotMatchesEverythingOption);
  for (auto match = block.globalMatch(QString::fromUtf8(part)); match.hasNext();) {
    blocks.push_back(match.next().captured(1).toUtf8());
  }
  return blocks;
}

TEST(Guide, LeadsToAMailAndToTheAllClear) {
  QTemporaryDir folder;
  MosquittoBroker broker(folder.path());
  MailServer mail;
  QByteArray rules =
      Contents(QStringLiteral(TEST_SOURCE_DIR "/../packaging/bridge/projector-alerts.yml"));
  Write(folder.filePath("alerts.yml"), rules.replace("for: 1m", "for: 1s"));
  const auto number = [](quint16 port) { return QByteArray::number(port); };
  const QByteArray metricsPort = number(LastingPort());
  const auto blocks =
      Commands({{"4400", number(LastingPort())},
                {"1883", number(broker.port)},
                {"9550", metricsPort},
                {"19090", number(LastingPort())},
                {"19093", number(LastingPort())},
                {"127.0.0.1:25", "127.0.0.1:" + number(mail.server.serverPort())},
                {"interval: 15s", "interval: 1s"},
                {"group_wait: 5s", "group_wait: 1s"},
                {"/usr/share/advanced-control-bridge/projector-alerts.yml",
                 folder.filePath("alerts.yml").toUtf8()},
                {"advanced-control-bridge --profiles",
                 BRIDGE_PROGRAM " --listen 127.0.0.1:" + metricsPort + " --profiles"},
                {"advanced-control-simulator", SIMULATOR_PROGRAM}});
  ASSERT_EQ(blocks.size(), 6U);

  QProcess shell;
  shell.setWorkingDirectory(folder.path());
  shell.setProcessChannelMode(QProcess::MergedChannels);
  shell.start("bash", {});
  QByteArray said;
  const auto says = [&](const QByteArray& text) {
    return Soon([&] {
             said += shell.readAll();
             return said.contains(text) || shell.state() == QProcess::NotRunning;
           }) &&
           said.contains(text);
  };
  // Nothing is installed here, but it must be there; and all ends with the shell, and well.
  shell.write(
      "set -eu\n"
      "trap 'for one in $(jobs -p); do kill $one; wait $one || exit 1; done' EXIT\n"
      "sudo() { dpkg-query -W \"${@:3}\"; }\n");
  for (std::size_t i = 0; i < blocks.size(); ++i) {
    shell.write(blocks[i] + "\necho \"done $((" + QByteArray::number(quint64{i}) + "))\"\n");
    ASSERT_TRUE(says("done " + QByteArray::number(quint64{i}))) << said.data();
    if (i == blocks.size() - 2) {
      EXPECT_TRUE(Soon([&] { return mail.mails.contains("FIRING"); }))
          << Contents(folder.filePath("alertmanager.log")).data();
      EXPECT_THAT(mail.mails.toStdString(), HasSubstr("Projector 00001"));
    }
  }
  EXPECT_TRUE(Soon([&] { return mail.mails.contains("RESOLVED"); }));
  EXPECT_TRUE(said.contains("projector_up{projector=\"Projector 00001\"} 1")) << said.data();
  EXPECT_TRUE(said.contains("\"reachability\"")) << said.data();
  shell.write("exit\n");
  const Outcome end = Finish(shell);
  EXPECT_EQ(end.exitCode, 0) << end.output;
}

}  // namespace
