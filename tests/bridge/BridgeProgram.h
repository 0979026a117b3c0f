#pragma once

#include <QRegularExpression>

#include "tests/bridge/Daemons.h"

/// Simulated projectors, and bridges that visit them.
class BridgeProgram : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(folder_.isValid()); }

  void StartProjectors(int count, const QStringList& more = {}) {
    profiles_ = folder_.filePath("projectors.json");
    simulator_ = std::make_unique<SimulatorProcess>(
        QStringList{"--fleet", QString::number(count), "--control", "0", "--write-profiles",
                    profiles_, "--warm-up", "0", "--cool-down", "0"} +
        more);
  }
  /// A line for the simulator, and its answer.
  std::string Control(const QByteArray& line) const { return simulator_->Control(line); }
  std::unique_ptr<Daemon> Bridge(const QStringList& more, quint16 port = 0) {
    return std::make_unique<Daemon>(
        BRIDGE_PROGRAM, QStringList{"--profiles", profiles_, "--interval", "5", "--listen",
                                    port == 0 ? "none" : QString("127.0.0.1:%1").arg(port)} +
                            more);
  }
  static QStringList At(const MosquittoBroker& broker) {
    return {"--broker", QString("127.0.0.1:%1").arg(broker.port)};
  }
  static void Publish(const MosquittoBroker& broker, const QStringList& arguments,
                      const QByteArray& input = {}) {
    const QStringList start{"-p", QString::number(broker.port), "-q", "1"};
    const Outcome outcome = ::Run("mosquitto_pub", start + arguments, input);
    EXPECT_EQ(outcome.exitCode, 0) << outcome.errors;
  }
  static double Metric(quint16 port, const QByteArray& sample) {
    const QByteArray text = '\n' + Get(port, "/metrics");
    const auto at = text.indexOf('\n' + sample + ' ');
    return at < 0 ? -1 : text.mid(at + sample.size() + 2).split('\n').first().toDouble();
  }
  static bool HoldsShare(quint16 port) { return Metric(port, "projector_bridge_holds_share") == 1; }
  static QByteArray NameOf(int number) {
    return "Projector " + QByteArray::number(number).rightJustified(5, '0');
  }
  static QByteArray Probe(int number) {
    return "/probe?target=" + NameOf(number).replace(' ', '+');
  }
  /// The number of a projector that is on.
  static int OneThatIsOn(quint16 port) {
    const QRegularExpression sample(
        "_power_state\\{projector=\"Projector (\\d+)\",state=\"on\"\\} 1\n");
    return sample.match(QString::fromUtf8(Get(port, "/metrics"))).captured(1).toInt();
  }
  /// The changes that all projectors together have made.
  std::string Changes() {
    const QString counts = QString::fromStdString(Control("* count"));
    return counts.section("changes ", 1).section(' ', 0, 0).toStdString();
  }

  QTemporaryDir folder_;
  QString profiles_;
  std::unique_ptr<SimulatorProcess> simulator_;
};
