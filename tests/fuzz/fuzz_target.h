// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <cstddef>

/// What libFuzzer calls with each input, and the corpus's test with each kept one. Always 0; what is wrong aborts.
extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, std::size_t size);
