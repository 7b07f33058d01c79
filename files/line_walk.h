// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

// The structure check's way from line to line, through a file or a share of it.

#include "files/field_ends.h"
#include "files/line_check.h"
#include "files/line_reader.h"

#include <functional>

namespace zrv {

struct CheckOptions {
    bool onlyErrors = false;    ///< the report leaves out what passed
    bool firstTwoLines = false; ///< of a WH file the payer and the first payee only
    QString programVersion;     ///< the checking program's version text

    // They make no difference to what is found.
    unsigned threads = 1; ///< that look at one file at once, where errors alone are wanted
    Instructions instructions = bestInstructions();
    std::size_t blockUnits = LineReader::DefaultBlock;
    qint64 shareBytes = 1 << 20; ///< of the file, for a thread at a time; even
};

/// A place between two lines, from which the check can go on.
struct CheckPlace {
    qint64 offset = 0; ///< of the line to come, in bytes from the file's beginning
    CheckState state;
};

/// Called before each line that is looked at field by field, with events that want errors alone now and then; within a
/// line of very many fields again, with the same place. False cancels the run before that line.
using BeforeLine = std::function<bool(const CheckPlace &)>;

enum class WalkEnd {
    Finished, ///< behind the last line that is to be checked
    Stopped,  ///< at the reader's stop
    Mismatch, ///< a field that is compared with a number holds none
    Cancelled,
};

struct WalkResult {
    WalkEnd end = WalkEnd::Finished;
    int field = 0; ///< of Mismatch, in the line that state.records + 1 tells
};

/// Checks line after line from where the reader stands. All must outlive it.
class LineWalk {
public:
    LineWalk(const FileRules &rules, const CheckOptions &options, LineReader &reader, CheckEvents &events);

    /// The state is that of the lines before, and afterwards of those that were checked, too.
    WalkResult walk(CheckState &state, const BeforeLine &beforeLine = {});

private:
    const FileRules &m_rules;
    const CheckOptions &m_options;
    LineReader &m_reader;
    CheckEvents &m_events;
};

} // namespace zrv
