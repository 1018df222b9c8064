/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */

/* Adds one matrix to each matrix of an array. */

#include <lxpm.h>
#include <stdio.h>

int main(void) {
    float matrices[3][2][2] = {{{1, 2}, {3, 4}}, {{5, 6}, {7, 8}}, {{9, 10}, {11, 12}}};
    const float offset[2][2] = {{100, 200}, {300, 400}};

    /* An operand is an address and its strides in bytes: from object to object, from row to row, between elements. */
    LxpStatus status = lxpmAdd_mam_32f(
        matrices[0][0], sizeof matrices[0], sizeof matrices[0][0], sizeof(float), // array of matrices
        offset[0], sizeof offset[0], sizeof(float),                               // plus one matrix
        matrices[0][0], sizeof matrices[0], sizeof matrices[0][0], sizeof(float), // stored where the array was
        2, 2, 3);                                                                 // width, height, count

    for (int k = 0; k < 3; ++k)
        printf("[%g %g; %g %g]\n", matrices[k][0][0], matrices[k][0][1], matrices[k][1][0], matrices[k][1][1]);
    return status == lxpStatusOk ? 0 : 1;
}
