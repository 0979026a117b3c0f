#include <fstream>
#include <regex>
#include <string>

#include <QByteArray>
#include <gtest/gtest.h>

#include "device/Connect.h"
#include "device/WireFrame.h"

namespace {

std::string Bytes(const std::string& hexadecimal) {
  return QByteArray::fromHex(QByteArray::fromStdString(hexadecimal)).toStdString();
}

TEST(WireTest, TheDocumentSaysEveryOperationAndEveryByte) {
  std::ifstream file(TEST_SOURCE_DIR "/../docs/wire.md");
  const std::regex operationLine(R"(\| (\d+) \| (\w+) \| (\w+) \|)");
  const std::regex exampleLine(R"(\|.*\| `(A5 5A [0-9A-F ]+)` \|)");
  std::size_t operations = 0;
  std::string examples;
  std::size_t exampleCount = 0;
  for (std::string line; std::getline(file, line);) {
    std::smatch cell;
    if (std::regex_match(line, cell, operationLine)) {
      const auto operation = OperationByName(cell[2].str());
      if (!operation) continue;  // the table of kinds
      ++operations;
      EXPECT_EQ(std::stoi(cell[1]), OperationNumber(*operation)) << cell[2];
      EXPECT_EQ(OperationByNumber(OperationNumber(*operation)), operation) << "given twice";
    } else if (std::regex_match(line, cell, exampleLine)) {
      examples += Bytes(cell[1]);
      ++exampleCount;
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
  ASSERT_EQ(exampleCount, std::size(said));
  Wire::Decoder decoder;
  decoder.Add(examples);
  std::string again;
  for (const Wire::Frame& frame : said) {
    EXPECT_EQ(decoder.Next(), frame) << again.size();
    Wire::Append(again, frame);
  }
  EXPECT_EQ(again, examples);
}

TEST(WireTest, FramesAreFoundBehindAnyNoiseInAnyPieces) {
  const Wire::Frame frame{0xA55A, Wire::Reply{Wire::Status::Answered, -1, -2}};
  std::string whole;
  Wire::Append(whole, frame);
  std::string changed = whole;
  changed[8] ^= 1;
  for (const std::string& noise :
       {std::string(), Bytes("00FF"), Bytes("A5"), Bytes("A5A5"), Bytes("A55A"), Bytes("A55A0407"),
        Bytes("A55A04FF"), Bytes("A55A0008"), changed, whole.substr(0, 14),
        std::string(9000, '?')}) {
    for (const std::size_t piece : {1, 2, 3, 7, 10'000}) {
      const std::string bytes = noise + whole + whole;
      Wire::Decoder decoder;
      int found = 0;
      for (std::size_t at = 0; at < bytes.size(); at += piece) {
        decoder.Add(std::string_view(bytes).substr(at, piece));
        while (const auto next = decoder.Next()) {
          EXPECT_EQ(next, frame);
          ++found;
        }
      }
      EXPECT_EQ(found, 2) << QByteArray::fromStdString(noise.substr(0, 20)).toHex().toStdString();
      EXPECT_EQ(decoder.Skipped(), noise.size());
    }
  }
}

TEST(WireTest, ConnectionParametersNameAWayOrWhatIsWrong) {
  constexpr int kMost = 4'000'000;
  const std::pair<ConnectionData, ProjectorAddress> connections[] = {
      {{1, 0, 7240, "192.0.2.1", ""}, TcpAddress{"192.0.2.1", 7240}},
      {{1, 9, 4352, "beamer", "pw"}, PjLinkAddress{"beamer", 4352, "pw"}},
      {{1, 0, 0, "beamer", ""}, PjLinkAddress{"beamer", 4352, ""}},
      {{1, 0, 5000, "pjlink://beamer", "pw"}, PjLinkAddress{"beamer", 5000, "pw"}},
      {{1, 0, 4352, "tcp://beamer", ""}, TcpAddress{"beamer", 4352}},
      {{1, 0, 65536, "beamer", ""}, AddressError{"no network port '65536'"}},
      {{1, 0, -1, "beamer", ""}, AddressError{"no network port '-1'"}},
      {{1, 0, 7240, "", ""}, AddressError{"no address ''"}},
      {{1, 0, 7240, "two words", ""}, AddressError{"no address 'two words'"}},
      {{1, 0, 7240, "beamer:80", ""}, AddressError{"wrong port in 'beamer:80'"}},
      {{0, 0, 0, "0.0.0.0", ""}, SerialAddress{"/dev/ttyS0", 19200}},
      {{7, 255, kMost, "", ""}, SerialAddress{"/dev/ttyS255", kMost}},
      {{0, 3, 9600, "/dev/ttyUSB0", ""}, SerialAddress{"/dev/ttyUSB0", 9600}},
      {{0, 256, 0, "", ""}, AddressError{"no serial port '257'"}},
      {{0, -1, 0, "", ""}, AddressError{"no serial port '0'"}},
      {{0, 0, kMost + 1, "", ""}, AddressError{"no line speed '4000001'"}},
  };
  for (const auto& [data, address] : connections) {
    EXPECT_EQ(ParseConnection(data), address) << data.Kind << ' ' << data.Text1;
  }
  const std::pair<const char*, ProjectorAddress> addresses[] = {
      {"tcp://[::1]:9", TcpAddress{"::1", 9}},
      {"tcp://::1", TcpAddress{"::1", 7240}},
      {"beamer:7241", TcpAddress{"beamer", 7241}},
      {"beamer", PjLinkAddress{"beamer", 4352, "pw"}},
      {"serial:///dev/pts/3?115200", SerialAddress{"/dev/pts/3", 115200}},
      {"/dev/pts/3", SerialAddress{"/dev/pts/3", 19200}},
      {"serial://COM1", AddressError{"no serial port 'serial://COM1'"}},
      {"/dev/pts/3?fast", AddressError{"no line speed 'fast'"}},
      {"tcp://[::1", AddressError{"no address 'tcp://[::1'"}},
      {"tcp://a:0", AddressError{"wrong port in 'tcp://a:0'"}},
      {"http://a", AddressError{"wrong port in 'http://a'"}},
      {"", AddressError{"no address ''"}},
  };
  for (const auto& [text, address] : addresses)
    EXPECT_EQ(ParseAddress(text, "pw"), address) << text;

  const auto none = MakeChannel(AddressError{"nonsense"});
  EXPECT_FALSE(none->Execute({PjtOperation::GetMirror}).answered);
  EXPECT_EQ(none->Connection(), ConnectionState::WrongParameters);
}

}  // namespace
