#include <chrono>
#include <functional>
#include <map>
#include <poll.h>
#include <pty.h>
#include <regex>
#include <termios.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <QByteArray>
#include <QStringList>

#include "device/Connect.h"
#include "device/HostAddress.h"
#include "device/protocol/PjLinkLine.h"
#include "device/protocol/WireFrame.h"
#include "tests/support/Record.h"

namespace {

std::string Bytes(const std::string& hexadecimal) {
  return QByteArray::fromHex(QByteArray::fromStdString(hexadecimal)).toStdString();
}

TEST(WireTest, TheDocumentDescribesEveryOperationAndEveryByte) {
  std::ifstream file(TEST_SOURCE_DIR "/../docs/wire.md");
  const std::regex operationLine(R"(\| (\d+) \| (\w+) \| (\w+) \|)");
  const std::regex exampleLine(R"(\|.*\| `(A5 5A [0-9A-F ]+)` \|)");
  std::size_t operations = 0;
  std::string examples;
  for (std::string line; std::getline(file, line);) {
    std::smatch cell;
    if (std::regex_match(line, cell, operationLine)) {
      const auto operation = OperationByName(cell[2].str());
      if (!operation) continue;  // a line of the table of kinds
      ++operations;
      EXPECT_EQ(std::stoi(cell[1]), OperationNumber(*operation)) << cell[2];
      EXPECT_EQ(OperationByNumber(OperationNumber(*operation)), operation) << "given twice";
    } else if (std::regex_match(line, cell, exampleLine)) {
      examples += Bytes(cell[1]);
    }
  }
  EXPECT_EQ(operations, kOperationCount);

  const Wire::Frame said[] = {
      {1, Wire::Hello{1, 1}},
      {1, Wire::Welcome{1}},
      {2, Wire::Request{OperationNumber(PjtOperation::Get), 0x2003}},
      {2, Wire::Reply{Wire::Status::Answered, 1, 128}},
      {3, Wire::Request{OperationNumber(PjtOperation::SetVolumeEachSrc), 0, 3, -2}},
      {3, Wire::Reply{}},
      {3, Wire::Reply{Wire::Status::UnknownOperation}},
  };
  Wire::Decoder decoder;
  decoder.Add(examples);
  std::string again;
  for (const Wire::Frame& frame : said) {
    EXPECT_EQ(decoder.Next(), frame) << again.size();
    Wire::Append(again, frame);
  }
  EXPECT_EQ(again, examples);
}

TEST(WireTest, FindsFramesAfterNoiseAndInPieces) {
  const Wire::Frame frame{0xA55A, Wire::Reply{Wire::Status::Answered, -1, -2}};
  std::string whole;
  Wire::Append(whole, frame);
  std::string changed = whole;
  changed[8] ^= 1;
  for (const std::string& noise :
       {std::string(), Bytes("00FF"), Bytes("A5"), Bytes("A5A5"), Bytes("A55A"), Bytes("A55A0407"),
        Bytes("A55A04FF"), Bytes("A55A0008"), changed, whole.substr(0, 14), '?' + whole.substr(1),
        std::string(9000, '?')}) {
    for (const std::size_t piece : {1U, 2U, 3U, 7U, 10'000U}) {
      const std::string bytes = std::string(noise).append(whole).append(whole);
      Wire::Decoder decoder;
      std::vector<Wire::Frame> found;
      for (std::size_t at = 0; at < bytes.size(); at += piece) {
        decoder.Add(std::string_view(bytes).substr(at, piece));
        while (const auto next = decoder.Next()) found.push_back(*next);
      }
      EXPECT_EQ(found, std::vector(2, frame)) << testing::PrintToString(noise.substr(0, 20));
      EXPECT_EQ(decoder.Skipped(), noise.size());
    }
  }
}

/// An address as text, "error: " before what is wrong with it.
std::string Described(const ProjectorAddress& address) {
  struct {
    std::string operator()(const AddressError& none) { return "error: " + none.text; }
    std::string operator()(const TcpAddress& to) { return "tcp " + At(to.host, to.port); }
    std::string operator()(const PjLinkAddress& to) {
      return "pjlink " + At(to.host, to.port) + ' ' + to.password;
    }
    std::string operator()(const SerialAddress& to) { return "serial " + At(to.device, to.baud); }
    static std::string At(const std::string& place, int number) {
      return place + ' ' + std::to_string(number);
    }
  } describe;
  EXPECT_NE(dynamic_cast<BoundedChannel*>(MakeChannel(address).get()) != nullptr,
            std::holds_alternative<AddressError>(address));
  return std::visit(describe, address);
}

TEST(WireTest, TextsAreUnderstoodAsRecorded) {
  using Text = const QString&;
  const auto number = [](std::optional<int> (*read)(std::string_view)) {
    return [read](Text text) {
      const auto value = read(text.toStdString());
      return value ? std::to_string(*value) : "nothing";
    };
  };
  const auto isOne = [](auto read) {
    return [read](Text text) { return std::string(read(text.toStdString()) ? "yes" : "no"); };
  };
  const std::map<QString, std::function<std::string(Text)>> readers{
      {"hours", number(PjLink::Hours)},
      {"blank", number(PjLink::Blank)},
      {"mute", number(PjLink::Mute)},
      {"switch", number(PjLink::Switch)},
      {"power", number(PjLink::PowerStatus)},
      {"errors", number(PjLink::ErrorStatus)},
      {"input", number(PjLink::InputNumber)},
      {"line", isOne(PjLink::Parse)},
      {"greeting", isOne(PjLink::ParseGreeting)},
      {"notice", isOne(PjLink::IsNotice)},
      {"host", isOne(IsHostAddress)},
      {"code", [](Text text) { return PjLink::InputCode(text.toInt()).value_or("nothing"); }},
      {"address", [](Text text) { return Described(ParseAddress(text.toStdString(), "pw")); }},
      {"connection", [](Text text) {
         const QStringList parts = text.split('|');
         return Described(ParseConnection({parts[0].toInt(), parts[1].toInt(), parts[2].toInt(),
                                           parts[3].toStdString(), parts[4].toStdString()}));
       }}};
  ExpectAnswers(TEST_SOURCE_DIR "/device/Texts.txt", [&](const std::string& question) {
    const auto text = QString::fromStdString(question);
    return readers.at(text.section(' ', 0, 0))(text.section(' ', 1));
  });
  EXPECT_FALSE(IsHostAddress("a\nb") || IsHostAddress(std::string(64, 'a')));
  EXPECT_EQ(Described(ParseAddress(std::string_view("beamer:72419", 11))), "tcp beamer 7241");
  EXPECT_GT(BoundsFor(PjLinkAddress{}).timeOut, BoundsFor(TcpAddress{}).timeOut);
}

TEST(WireTest, ASerialLineHasTheSpeedOfItsAddress) {
  int line = -1, otherEnd = -1;
  ASSERT_EQ(openpty(&line, &otherEnd, nullptr, nullptr, nullptr), 0);
  const auto channel =
      MakeUnboundedChannel(SerialAddress{ttyname(otherEnd), 38400}, std::chrono::hours(1));
  const std::jthread asks([&] { channel->Execute({PjtOperation::GetMirror}); });
  pollfd request{line, POLLIN, 0};
  EXPECT_EQ(poll(&request, 1, 60'000), 1);
  termios settings{};
  EXPECT_EQ(tcgetattr(line, &settings), 0);
  EXPECT_EQ(cfgetospeed(&settings), speed_t{B38400});
  close(line);
  close(otherEnd);
}

}  // namespace
