// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// Stands in front of the library's function of that name, as the executable's own symbols do, and is a little wrong:
// five units of the last place, which no picture would show.

#include <cmath>
#include <lxpm.h>

LxpStatus lxpmL2Norm_va_32f_P(const float *const *srcPtrs, int srcPtrOffset, int srcObjStride, float *dst, int len,
                              int count) {
    for (int k = 0; k < count; ++k) {
        double sum = 0;
        for (int j = 0; j < len; ++j) {
            const char *element = reinterpret_cast<const char *>(srcPtrs[j]) + srcPtrOffset;
            const float value = *reinterpret_cast<const float *>(element + std::ptrdiff_t{k} * srcObjStride);
            sum += double(value) * value;
        }
        dst[k] = static_cast<float>(std::sqrt(sum) * (1 + 5 * 0x1p-23));
    }
    return lxpStatusOk;
}
