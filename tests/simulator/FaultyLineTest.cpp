// How a simulated projector's replies leave.

#include <QBuffer>
#include <gtest/gtest.h>

#include "simulator/FaultyLine.h"
#include "tests/support/Soon.h"

namespace {

using Faulty = LineFault::Kind;

TEST(FaultyLine, ClosesWhenEverythingIsWritten) {
  for (const Faulty kind : {Faulty::None, Faulty::Late, Faulty::Trickle}) {
    QBuffer line;
    ASSERT_TRUE(line.open(QIODevice::WriteOnly));
    const LineFault fault{kind, 1};
    FaultyLine replies(line, fault);
    replies.Send("ab");
    replies.Send("cd");
    EXPECT_EQ(replies.Backlog(), kind == Faulty::None ? 0U : kind == Faulty::Late ? 4U : 3U);
    replies.Close();
    replies.Send("nothing more");
    EXPECT_TRUE(Soon([&] { return !line.isOpen(); }));
    EXPECT_EQ(line.data(), "abcd");
  }
}

}  // namespace
