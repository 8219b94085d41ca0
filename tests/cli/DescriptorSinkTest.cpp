#include "cli/DescriptorSink.h"

#include "support/PrintQt.h"
#include "support/TestFiles.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <csignal>
#include <fcntl.h>
#include <thread>
#include <unistd.h>

namespace tessaline {
namespace {

using namespace Qt::Literals::StringLiterals;

TEST(DescriptorSink, WritesAllPiecesInOrder) {
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"out"_s);
    const int descriptor = ::open(path.toLocal8Bit().constData(), O_WRONLY | O_CREAT, 0600);
    DescriptorSink sink(descriptor);
    EXPECT_TRUE(sink.write(QByteArrayView("a\0b", 3)));
    EXPECT_TRUE(sink.write({}));
    EXPECT_TRUE(sink.write(QByteArray(100'000, '\n')));
    ::close(descriptor);
    EXPECT_EQ(sink.error(), QString());
    EXPECT_EQ(fileBytes(path), QByteArray("a\0b", 3) + QByteArray(100'000, '\n'));
}

TEST(DescriptorSink, WaitsForAReaderOfANonBlockingPipe) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    ASSERT_EQ(::fcntl(ends[1], F_SETFL, O_NONBLOCK), 0);
    qint64 received = 0;
    std::thread reader([&] {
        char buffer[4096];
        for (auto count = ::read(ends[0], buffer, sizeof buffer); count > 0;
             count = ::read(ends[0], buffer, sizeof buffer))
            received += count;
    });
    EXPECT_TRUE(DescriptorSink(ends[1]).write(QByteArray(1'000'000, 'x')));
    ::close(ends[1]);
    reader.join();
    ::close(ends[0]);
    EXPECT_EQ(received, 1'000'000);
}

TEST(DescriptorSink, TellsThatTheReaderHasGone) {
    std::signal(SIGPIPE, SIG_IGN);
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    ::close(ends[0]);
    DescriptorSink sink(ends[1]);
    EXPECT_FALSE(sink.write("x"));
    EXPECT_EQ(sink.error(), u"Broken pipe"_s);
    EXPECT_FALSE(sink.write({})) << "a failure is final";
    ::close(ends[1]);
}

TEST(DescriptorSink, TellsThatTheDescriptorIsClosed) {
    DescriptorSink sink(-1);
    EXPECT_FALSE(sink.write("x"));
    EXPECT_EQ(sink.error(), u"Bad file descriptor"_s);
}

TEST(DescriptorSink, DoesNotWriteToAFileThatGetsTheNumberOfAClosedOne) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    ::close(ends[1]);
    DescriptorSink sink(ends[1]);
    ASSERT_EQ(::open("/dev/null", O_WRONLY), ends[1]);
    EXPECT_FALSE(sink.write("x"));
    EXPECT_EQ(sink.error(), u"Bad file descriptor"_s);
    ::close(ends[1]);
    ::close(ends[0]);
}

} // namespace
} // namespace tessaline
