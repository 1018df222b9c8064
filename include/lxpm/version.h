/* Copyright (c) 2026 The lxpm authors
 * SPDX-License-Identifier: MIT */
#ifndef LXPM_VERSION_H
#define LXPM_VERSION_H

#ifdef __cplusplus
extern "C" {
#endif

/* Which build of the library is loaded. */
typedef struct LxpmLibVersion {
    int majorVersion;          /* 7 */
    int minorVersion;          /* 1 */
    int updateNumber;          /* update within the minor version */
    int revision;              /* source revision of the build */
    char cpuCode[4];           /* processor generation that the library is built for, padded with zero bytes */
    const char *libName;       /* library name with its processor variant */
    const char *versionText;   /* "major.minor.update (rrevision)" */
    const char *buildDateText; /* "Mon dd yyyy" */
} LxpmLibVersion;

/* The version record: constant, valid for the whole life of the process, never to be freed. Cannot fail. */
const LxpmLibVersion *lxpmGetLibVersion(void);

#ifdef __cplusplus
}
#endif

#endif
