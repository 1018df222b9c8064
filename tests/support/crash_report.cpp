// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

#include "support/crash_report.h"

#include "support/call.h"

#include <array>
#include <string>

#include <signal.h>
#include <unistd.h>

namespace lxpm::test {

namespace {

constexpr std::array fatalSignals = {SIGSEGV, SIGBUS, SIGILL, SIGFPE};
std::array<struct sigaction, fatalSignals.size()> previous;

// Formatting a text allocates, which a signal handler should not do. The fault came from a kernel, though, which holds
// no lock of the allocator; and the process is lost anyway.
void printLastCall(int signal) {
    for (std::size_t index = 0; index < fatalSignals.size(); ++index) {
        sigaction(fatalSignals[index], &previous[index], nullptr);
    }
    const Call *call = lastCall();
    const std::string text = "\nSignal " + std::to_string(signal) + " " +
                             (call != nullptr ? call->text() : std::string("outside of a call")) + "\n";
    [[maybe_unused]] const ssize_t written = write(STDERR_FILENO, text.data(), text.size());
    // Returning repeats the faulting instruction, now under the previous handler.
}

} // namespace

void reportCrashes() {
    struct sigaction action = {};
    action.sa_handler = printLastCall;
    for (std::size_t index = 0; index < fatalSignals.size(); ++index) {
        sigaction(fatalSignals[index], &action, &previous[index]);
    }
}

} // namespace lxpm::test
