#include "app/ProcessSetup.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <pwd.h>
#include <unistd.h>

namespace tessaly {
namespace {

// A closed one would be given to the next thing opened, and the log go into the display's socket.
void openStandardStreams() {
    int descriptor = 0;
    while (descriptor >= 0 && descriptor <= STDERR_FILENO) {
        descriptor = ::open("/dev/null", O_RDWR); // the lowest number that is free
    }
    if (descriptor >= 0) {
        ::close(descriptor);
    }
}

// That of the account's record, as the shell would have taken.
void findHome() {
    const char* const home = std::getenv("HOME");
    if (home != nullptr && *home != '\0') {
        return;
    }
    if (const passwd* const account = ::getpwuid(::getuid()); account != nullptr) {
        ::setenv("HOME", account->pw_dir, 1);
    }
}

} // namespace

void setUpProcess() {
    openStandardStreams();
    std::signal(SIGPIPE, SIG_IGN); // of a log that nobody reads any more
    std::signal(SIGXFSZ, SIG_IGN); // the write then fails, and that is handled
    findHome();
}

} // namespace tessaly
