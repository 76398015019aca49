// The tests run under the locale of the environment, as the program does once the toolkit has called
// setlocale.

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    const char* const locale = std::setlocale(LC_ALL, "");
    const char* const expected = std::getenv("TESSALY_EXPECTED_SEPARATOR");
    const char* const actual = std::localeconv()->decimal_point;
    if (expected != nullptr && std::strcmp(expected, actual) != 0) {
        std::fprintf(stderr, "locale %s: decimal separator %s instead of %s\n", locale ? locale : "unknown",
                     actual, expected);
        return 1;
    }
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
