// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/screen.h"

namespace zrv {

/// What the record screens share: the form looks at each key first and drops those that the field's tag
/// doesn't admit, and Enter walks through the fields as Tab does.
class RecordScreen : public Screen {
public:
    using Screen::Screen;

protected:
    void Form_KeyPress(int &keyAscii) override;

    /// CheckRequired over a container; when a field is empty the user is told and the focus goes to the first one.
    bool requiredAreFilled(QStringView container);
};

} // namespace zrv
