// Widget tests: one application object for all of them.

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    if (testing::GTEST_FLAG(list_tests)) {
        return RUN_ALL_TESTS(); // needs no platform
    }
    qputenv("DBUS_SESSION_BUS_ADDRESS", "disabled:"); // the first to look for a bus would start one, to stay
    const QApplication application{argc, argv};
    return RUN_ALL_TESTS();
}
