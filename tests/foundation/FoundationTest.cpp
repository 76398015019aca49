#include "foundation/AtomicFile.h"
#include "foundation/Descriptor.h"
#include "foundation/DiagnosticLog.h"
#include "foundation/NotificationCenter.h"
#include "foundation/NumberText.h"
#include "foundation/Truncation.h"
#include "foundation/Utf8.h"
#include "support/FileSizeLimit.h"
#include "support/TemporaryFolder.h"

#include <fcntl.h>
#include <gtest/gtest.h>
#include <limits>

namespace tessaly {
namespace {

TEST(AtomicFile, replacesWholeAndLeavesTheOldFileOnFailure) {
    const TemporaryFolder temporary;
    const Descriptor folder{::open(temporary.path.c_str(), O_RDONLY | O_DIRECTORY)};
    const auto file = temporary.path / "styles.css";
    const std::string old(100'000, 'x');
    std::ofstream{temporary.path / "theirs"} << "theirs";
    std::filesystem::create_symlink("theirs", file);
    EXPECT_FALSE(writeFileAtomically(folder, "styles.css", old));
    std::filesystem::create_directory(temporary.path / "taken");
    std::shared_ptr<void> fullDisk = limitFileSize(4096);
    EXPECT_EQ(writeFileAtomically(folder, "styles.css", std::string(100'000, 'y')),
              std::errc::file_too_large);
    fullDisk.reset();
    EXPECT_TRUE(writeFileAtomically(folder, "taken", "new"));
    {
        const int next = ::dup(folder.number());
        ::close(next);
        AtomicFile unclosable{folder, "styles.css", S_IRUSR};
        EXPECT_TRUE(!unclosable.write("new") && ::close(next) == 0);
        EXPECT_EQ(unclosable.commit(AtomicFile::Durability::Eventual), std::errc::bad_file_descriptor);
    }
    EXPECT_EQ(contentsOf(file), old);
    EXPECT_EQ(contentsOf(temporary.path / "theirs"), "theirs") << "no link is followed";
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator{temporary.path}, {}), 3) << "of its own none";
}

TEST(NotificationCenter, deliversInOrderToWhoWantsItWhateverHandlersDoMeanwhile) {
    auto center = std::make_unique<NotificationCenter>();
    std::string calls;
    const auto observe = [&](char mark, const char* name = "A", const void* object = nullptr) {
        return center->addObserver(name, object, [&calls, mark](const auto&) { calls += mark; });
    };
    const auto callsFor = [&](const Notification& notification) {
        calls.clear();
        center->post(notification);
        return calls;
    };
    const auto ofCalls = observe('2', "C", &calls), ofAny = observe('4', "C");
    EXPECT_EQ(callsFor({"C", &calls, {}}), "24");
    EXPECT_EQ(callsFor({"C", &center, {}}), "4");

    NotificationCenter::Observation first, second, added;
    first = center->addObserver("A", nullptr, [&](const auto&) {
        calls += '1';
        first.reset(); // itself, while it runs
        second.reset();
        added = observe('n');
        center->post({"A", nullptr, {}});
    });
    second = observe('2');
    NotificationCenter::Observation third = observe('3');
    EXPECT_EQ(callsFor({"A", nullptr, {}}), "13n3")
        << "the nested post reaches the third and the new one, then the outer the third";
    third = observe('4'); // what it held before ends
    EXPECT_EQ(callsFor({"A", nullptr, {}}), "n4");
    center.reset(); // the observations live on
}

TEST(NumberText, writesThePrintfFormsWithAPointAndCutsPercentsToOneDecimal) {
    std::string texts = fixedText(33.25, 1) + ' ' + fixedText(1.0, 3) + ' ' + fixedText(-0.333, 6);
    for (const double value : {1.0, 0.0, 0.75, 0.25, 0.05, 0.55, 0.00001}) {
        texts += ' ' + significantText(value, 1);
    }
    for (const double fraction : {0.0, 1.0, 0.2567, 0.9999, 0.333, 0.334, 0.0049, -0.0001, 0.07, 1e-12}) {
        texts += ' ' + percentText(fraction);
    }
    EXPECT_EQ(texts, "33.2 1.000 -0.333000 1 0 0.8 0.2 0.05 0.6 1e-05 0 100 25.6 99.9 33.3 33.4 0.4 0 7 0");
    EXPECT_EQ(fixedText(std::numeric_limits<double>::max(), 1).size(), 311U);
    EXPECT_EQ(hexByteText(0) + hexByteText(10) + hexByteText(255), "000aff");
}

TEST(DiagnosticLog, writesALineForAMessage) {
    testing::internal::CaptureStderr();
    DiagnosticLog::write("a\r\nb");
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "a\\r\\nb\n");
}

TEST(Truncation, cutsTowardZeroAndNeverOverflows) {
    EXPECT_EQ(truncated(-5.9), -5);
    EXPECT_EQ(truncated(1e300), std::numeric_limits<std::int64_t>::max());
    EXPECT_EQ(truncated(-1e300), std::numeric_limits<std::int64_t>::min());
    EXPECT_EQ(truncated(std::numeric_limits<double>::quiet_NaN()), 0);
}

TEST(Utf8, encodesEveryPlaneAndMendsLoneSurrogates) {
    EXPECT_EQ(toUtf8(u"a\u00e9\u20ac\U0001F308"), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8C\x88");
    EXPECT_EQ(toUtf8(std::u16string{0xD83C, u'y', 0xDF08}), "\xEF\xBF\xBDy\xEF\xBF\xBD");
}

} // namespace
} // namespace tessaly
