// Copyright (c) 2026 The lxpm authors
// SPDX-License-Identifier: MIT

// The exports of Add (92).

SINGLE(Add, mm)
SINGLE(Add, tm)
SINGLE(Add, tt)
SINGLE(Add, vv)
SINGLE(Add, vc)
ARRAY(Add, mam)
ARRAY(Add, tam)
ARRAY(Add, mat)
ARRAY(Add, tat)
ARRAY(Add, mama)
ARRAY(Add, tama)
ARRAY(Add, tata)
ARRAY(Add, vav)
ARRAY(Add, vava)
ARRAY(Add, vca)
ARRAY(Add, vac)
ARRAY(Add, vaca)
