// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// What brings an older store up, step by step, and makes a store for a branch: the routines that the screens of upkeep
// share.

#include "upkeep/base_data_steps.h"
#include "upkeep/branch.h"
#include "upkeep/column_steps.h"
#include "upkeep/upgrade_run.h"
#include "upkeep/user_codes.h"
