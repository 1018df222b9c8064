/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */
#ifndef LXP_STATUS_H
#define LXP_STATUS_H

/*
 * What every function of the family returns: zero for success, a negative value for an error. There are no warnings,
 * no global error state and no error texts.
 *
 * A status of an argument check (SizeErr, NullPtrErr, StrideErr, RoiShiftErr, CountErr, SizeMatchErr) is found before
 * any operand is read or written, so the destination of such a call is as it was. Each family documents the order of
 * its checks: a call with several faults returns the status of the check that is made first.
 */
typedef enum LxpStatus {
    lxpStatusOk = 0,              /* success */
    lxpStatusSizeErr = -6,        /* a size is less than 1, or not one that the operation allows */
    lxpStatusNullPtrErr = -8,     /* a required pointer is null */
    lxpStatusDivByZeroErr = -10,  /* a divisor met while computing is too close to zero */
    lxpStatusNotPosDefErr = -179, /* the matrix is not positive definite */
    lxpStatusStrideErr = -182,    /* a stride is less than 1 or not a multiple of the element size */
    lxpStatusSingularErr = -195,  /* the matrix is singular */
    lxpStatusRoiShiftErr = -202,  /* a pointer offset is negative or not a multiple of the element size */
    lxpStatusCountErr = -203,     /* the number of objects of an array is less than 1 */
    lxpStatusSizeMatchErr = -204, /* the sizes of the operands do not agree */
    lxpStatusConvergeErr = -205   /* an iteration did not converge within its limit */
} LxpStatus;

#endif
