#include <chrono>
#include <fstream>
#include <poll.h>
#include <pty.h>
#include <regex>
#include <string>
#include <termios.h>
#include <thread>
#include <unistd.h>
#include <vector>

#include <QByteArray>
#include <gtest/gtest.h>

#include "device/Connect.h"
#include "device/HostAddress.h"
#include "device/protocol/WireFrame.h"

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

TEST(WireTest, ConnectionParametersGiveAnAddressOrAnError) {
  constexpr int kMost = 4'000'000;
  const std::pair<ProjectorAddress, ProjectorAddress> cases[] = {
      {ParseConnection({1, 0, 65535, "192.0.2.1", ""}), TcpAddress{"192.0.2.1", 65535}},
      {ParseConnection({1, 9, 4352, "beamer", "pw"}), PjLinkAddress{"beamer", 4352, "pw"}},
      {ParseConnection({1, 0, 5000, "pjlink://beamer", "pw"}), PjLinkAddress{"beamer", 5000, "pw"}},
      {ParseConnection({1, 0, 4352, "tcp://beamer", ""}), TcpAddress{"beamer", 4352}},
      {ParseConnection({1, 0, 65536, "beamer", ""}), AddressError{"no network port '65536'"}},
      {ParseConnection({1, 0, -1, "beamer", ""}), AddressError{"no network port '-1'"}},
      {ParseConnection({1, 0, 7240, "two words", ""}), AddressError{"no address 'two words'"}},
      {ParseConnection({1, 0, 7240, "beamer:80", ""}), AddressError{"wrong port in 'beamer:80'"}},
      {ParseConnection({0, 0, 0, "0.0.0.0", ""}), SerialAddress{"/dev/ttyS0", 19200}},
      {ParseConnection({7, 255, kMost, "", ""}), SerialAddress{"/dev/ttyS255", kMost}},
      {ParseConnection({0, 3, 9600, "/dev/ttyUSB0", ""}), SerialAddress{"/dev/ttyUSB0", 9600}},
      {ParseConnection({0, 256, 0, "", ""}), AddressError{"no serial port '257'"}},
      {ParseConnection({0, -1, 0, "", ""}), AddressError{"no serial port '0'"}},
      {ParseConnection({0, 0, kMost + 1, "", ""}), AddressError{"no line speed '4000001'"}},
      {ParseConnection({1, 0, 80, "beamer:80", ""}), TcpAddress{"beamer", 80}},
      {ParseAddress("tcp://[::1]9"), AddressError{"wrong port in 'tcp://[::1]9'"}},
      {ParseAddress("/dev/pts/3?9x"), AddressError{"no line speed '9x'"}},
      {ParseAddress("/dev/pts/3?0"), AddressError{"no line speed '0'"}},
      {ParseAddress("tcp://[::1]:1", "pw"), TcpAddress{"::1", 1}},
      {ParseAddress("tcp://::1", "pw"), TcpAddress{"::1", 7240}},
      {ParseAddress(std::string_view("beamer:72419", 11), "pw"), TcpAddress{"beamer", 7241}},
      {ParseAddress("beamer", "pw"), PjLinkAddress{"beamer", 4352, "pw"}},
      {ParseAddress("serial:///dev/pts/3?1", "pw"), SerialAddress{"/dev/pts/3", 1}},
      {ParseAddress("/dev/pts/3", "pw"), SerialAddress{"/dev/pts/3", 19200}},
      {ParseAddress("serial://COM1", "pw"), AddressError{"no serial port 'serial://COM1'"}},
      {ParseAddress("tcp://[::1", "pw"), AddressError{"no address 'tcp://[::1'"}},
      {ParseAddress("tcp://a:0", "pw"), AddressError{"wrong port in 'tcp://a:0'"}},
      {ParseAddress("http://a", "pw"), AddressError{"wrong port in 'http://a'"}},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(one.first, one.second) << "case " << &one - cases;
    EXPECT_NE(dynamic_cast<BoundedChannel*>(MakeChannel(one.first).get()) != nullptr,
              std::holds_alternative<AddressError>(one.second));
  }
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

TEST(WireTest, AHostIsANameOrACompleteAddress) {
  std::string longest = "a";
  while (longest.size() < 253) longest += ".a";
  for (const std::string host :
       {longest.c_str(), "192.0.2.1", "::1", "fe80::1%eth0", "beamer", "beamer.",
        "hall_2.example.org", "3com", "4.hall", "b\u00FCro", "\u5927\u5385.example"}) {
    EXPECT_TRUE(IsHostAddress(host)) << host;
  }
  for (const char* none :
       {"", "192.0.2", "192.0.2.256", "192.0.2.1.1", "1", "1..2.3", "a..b", "a b", "a/b", "a@b",
        "[::1]", "::1::2", "a:80", "tcp://a", "a,b", "a%b"}) {
    EXPECT_FALSE(IsHostAddress(none)) << none;
  }
  EXPECT_FALSE(IsHostAddress("a\nb") || IsHostAddress('a' + longest));
  EXPECT_FALSE(IsHostAddress(std::string(64, 'a')));
}

}  // namespace
