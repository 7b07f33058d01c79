// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/preview/bar_code.h"

#include <memory>
#include <zint.h>

namespace zrv {

std::vector<bool> code128(const QString &text)
{
    const std::unique_ptr<zint_symbol, decltype(&ZBarcode_Delete)> symbol(ZBarcode_Create(), ZBarcode_Delete);
    if (!symbol)
        return {};
    symbol->symbology = BARCODE_CODE128;
    symbol->input_mode = UNICODE_MODE;
    const QByteArray bytes = text.toUtf8();
    const int outcome = ZBarcode_Encode(symbol.get(), reinterpret_cast<const unsigned char *>(bytes.constData()),
                                        static_cast<int>(bytes.size()));
    if (outcome >= ZINT_ERROR)
        return {};
    std::vector<bool> modules;
    for (int module = 0; module < symbol->width; ++module)
        modules.push_back((symbol->encoded_data[0][module / 8] >> (module % 8)) & 1);
    return modules;
}

} // namespace zrv
