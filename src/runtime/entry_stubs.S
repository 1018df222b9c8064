// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exported entries. Each forwards its call, arguments untouched, through its slot of the entry table.

        .hidden lxpmEntryTable
        .set    slot, 0
        .text

.macro  entry name
        .globl  \name
        .type   \name, @function
        .p2align 4
\name:
        .cfi_startproc
        endbr64
        jmp     *lxpmEntryTable + 8 * slot(%rip)
        .cfi_endproc
        .size   \name, . - \name
        .set    slot, slot + 1
.endm

#define MEMBER(operation, code, type, layout, name) entry name;
#define EXPORT(name) entry name;
#include "runtime/exports.h"

        .section .note.GNU-stack, "", @progbits
