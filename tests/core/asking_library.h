// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT
#pragma once

// What a library of the family gets when it asks for the number of threads.
int threadsOfLibrary();
