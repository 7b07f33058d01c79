// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The shared helpers on dates, texts, numbers, national codes and files, which every screen may call.

#include "core/public/check_digit.h"
#include "core/public/digit_codes.h"
#include "core/public/files.h"
#include "core/public/filter_key.h"
#include "core/public/null_text.h"
#include "core/public/number_words.h"
#include "core/public/shortcut.h"
#include "core/public/solar_date.h"
