// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "core/platform/platform.h"

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace zrv {

class Screen;
struct Program;

/// The screens by name, filled by whoever starts the program, so that the main form opens screens of folders
/// that it does not know.
class Catalogue {
public:
    using Maker = std::function<std::unique_ptr<Screen>(Program &)>;

    void add(const QString &name, Maker maker) { m_makers[name] = std::move(maker); }
    /// A new screen of this name; null when the program has none.
    [[nodiscard]] std::unique_ptr<Screen> make(const QString &name, Program &program) const;

    /// The names of all screens, in the order of the alphabet.
    [[nodiscard]] std::vector<QString> names() const;

private:
    std::map<QString, Maker> m_makers;
};

/// The run of the program: what lives as long as it does and is read by many screens. There is one, owned by main.
struct Program {
    explicit Program(Platform &platformOfRun)
        : platform(platformOfRun)
    {
    }

    Platform &platform;
    Catalogue catalogue;

    QString StoreConnectionString; ///< built when the login screen loads
    QString ProgramVersion;        ///< the version text behind every title that holds it
    QString UserFullName;
    bool IsSupervisor = false; ///< shown at the login and stored; every user may do everything
    QString PayerTFN;          ///< the payer's file number, in all queries of the four data tables
    QString PayerCodeShobe;
    qint16 PayerMMoadiType = 0;
    qint16 PayerSMoadiType = 0;
    qint16 PayerMohasebeType = 0;
    QString PrevSoftVersion;    ///< the version for which the first-run question came last
    QString HogogPath;          ///< WH file handed from the writer to the check screen
    QString KholPath;           ///< WK file likewise
    QString DisplayedCodeShobe; ///< branch of the last salary list displayed, which a summary list lacks
    QString DisplayedTFN;       ///< first values of the last electronic file displayed,
    QString DisplayedTaxYear;   ///< blank until the first is; the printed summary's bar code
    QString DisplayedTaxMonth;  ///< reads them
    std::function<void(const QString &)> showPayer; ///< writes the payer's name into the main form's status bar
    QString ShownPayer;                             ///< what stands there, which the printed salary list bears
    QString SearchCallerName;                       ///< who opened the payee search
    QString SelectedMelliCode;                      ///< the payee picked there
};

} // namespace zrv
