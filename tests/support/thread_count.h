// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The test programs define ownGetNumThreads themselves: the library asks them how many threads it may use, and they
// count how often it asks.

#ifndef LXPM_TESTS_SUPPORT_THREAD_COUNT_H
#define LXPM_TESTS_SUPPORT_THREAD_COUNT_H

namespace lxpm::test {

/// The answer to every question from now on.
void setThreadCount(int count);

/// The answers to a parallel kernel's two questions: at its start, and just before it starts a team.
void setThreadCounts(int atStart, int beforeTeam);

/// The core library's own answer from now on.
void useThreadCountOfCore();

/// How many threads a parallel kernel gets for so many objects: one where it stays alone.
int teamFor(int count);

/// How often the library asked since one of the functions above was called.
int threadCountQuestions();

} // namespace lxpm::test

#endif
