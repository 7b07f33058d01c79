// SPDX-License-Identifier: GPL-3.0-or-later
#include "qt/icons.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QXmlStreamReader>

/// The library is static: without this the linker leaves the files out.
static void linkFiles()
{
    Q_INIT_RESOURCE(icons);
}

namespace zrv::look {

using namespace Qt::Literals::StringLiterals;

// Reading -------------------------------------------------------------------------------------------------------

namespace {

bool addPath(QPainterPath &drawing, QStringView data)
{
    const QList<QStringView> words = data.split(u' ', Qt::SkipEmptyParts);
    qsizetype at = 0;
    bool whole = true;
    const auto number = [&] {
        bool isNumber = false;
        const double read = at < words.size() ? words[at].toDouble(&isNumber) : 0;
        ++at;
        whole = whole && isNumber;
        return read;
    };
    const auto point = [&] {
        const double x = number();
        return QPointF(x, number());
    };
    while (whole && at < words.size()) {
        const QStringView letter = words[at++];
        if (letter == u"M") {
            drawing.moveTo(point());
        } else if (letter == u"L") {
            drawing.lineTo(point());
        } else if (letter == u"C") {
            const QPointF leaves = point();
            const QPointF arrives = point();
            drawing.cubicTo(leaves, arrives, point());
        } else if (letter == u"Z") {
            drawing.closeSubpath();
        } else {
            whole = false;
        }
    }
    return whole;
}

bool addElement(QPainterPath &drawing, QStringView element, const QXmlStreamAttributes &attributes)
{
    const auto number = [&](QLatin1String name) { return attributes.value(name).toDouble(); };
    if (element == u"path")
        return addPath(drawing, attributes.value("d"_L1));
    if (element == u"circle") {
        drawing.addEllipse(QPointF(number("cx"_L1), number("cy"_L1)), number("r"_L1), number("r"_L1));
        return true;
    }
    if (element == u"rect") {
        const QRectF room(number("x"_L1), number("y"_L1), number("width"_L1), number("height"_L1));
        drawing.addRoundedRect(room, number("rx"_L1), number("rx"_L1));
        return true;
    }
    return element == u"svg";
}

} // namespace

std::optional<QPainterPath> readDrawing(const QByteArray &svg)
{
    QPainterPath drawing;
    QXmlStreamReader reader(svg);
    while (!reader.atEnd())
        if (reader.readNext() == QXmlStreamReader::StartElement
            && !addElement(drawing, reader.name(), reader.attributes()))
            return std::nullopt;
    if (reader.hasError() || drawing.isEmpty())
        return std::nullopt;
    return drawing;
}

// Painting ------------------------------------------------------------------------------------------------------

namespace {

constexpr double Square = 24; ///< the side on which the files are drawn
constexpr double Line = 1.6;

class Drawing : public QIconEngine {
public:
    explicit Drawing(QString name)
        : m_name(std::move(name))
    {
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        if (m_lines.isEmpty())
            read();
        const QPalette palette = QGuiApplication::palette();
        const QColor ink = mode == QIcon::Disabled ? palette.color(QPalette::Disabled, QPalette::ButtonText)
                           : state == QIcon::On    ? palette.color(QPalette::HighlightedText)
                                                   : palette.color(QPalette::Highlight);
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.topLeft());
        painter->scale(rect.width() / Square, rect.height() / Square);
        painter->strokePath(m_lines, QPen(ink, Line, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        QPixmap painted(size);
        painted.fill(Qt::transparent);
        QPainter painter(&painted);
        paint(&painter, painted.rect(), mode, state);
        return painted;
    }

    [[nodiscard]] QIconEngine *clone() const override { return new Drawing(*this); }
    QString iconName() override { return m_name; }

private:
    void read()
    {
        linkFiles();
        QFile file(u":/icons/"_s + m_name + u".svg"_s);
        if (file.open(QIODevice::ReadOnly))
            m_lines = readDrawing(file.readAll()).value_or(QPainterPath());
    }

    QString m_name;
    QPainterPath m_lines;
};

} // namespace

QIcon icon(const QString &name)
{
    return QIcon(new Drawing(name));
}

// Which button bears which --------------------------------------------------------------------------------------

QString iconName(const QString &form, const QString &button)
{
    struct Row {
        QLatin1String button;
        QLatin1String icon;
    };
    // clang-format off
    static constexpr Row rows[] = {
        // The ways that lead to other screens.
        {"cmdKarfarma"_L1,           "payer"_L1},
        {"cmdKarkonan"_L1,           "payee"_L1},
        {"cmdHogog"_L1,              "salary"_L1},
        {"cmdKholList"_L1,           "summary"_L1},
        {"cmdSrcMoadi"_L1,           "find_payee"_L1},
        {"cmdReports"_L1,            "reports"_L1},
        {"cmdCreatTextFiles"_L1,     "files"_L1},
        {"cmdReadTextFiles"_L1,      "check"_L1},
        {"cmdTextFilesConfig"_L1,    "check"_L1},
        {"cmdShowFiles"_L1,          "folder"_L1},
        {"cmdUsres"_L1,              "users"_L1},
        {"cmdCodin_Semat"_L1,        "codes"_L1},
        {"cmdDisplayInformation"_L1, "show"_L1},
        {"cmdTransferData"_L1,       "copy"_L1},
        // What is done with a record, and the way out.
        {"cmdDataOk"_L1,             "save"_L1},
        {"cmdSavePassword"_L1,       "save"_L1},
        {"cmdDelete"_L1,             "delete"_L1},
        {"cmdPrint"_L1,              "print"_L1},
        {"cmdPrintHogh"_L1,          "print"_L1},
        {"cmdPrintKhol"_L1,          "print"_L1},
        {"cmdSearch"_L1,             "find"_L1},
        {"cmdComboSearch"_L1,        "find"_L1},
        {"cmdExit"_L1,               "exit"_L1},
        {"cmdExitHelp"_L1,           "exit"_L1},
    };
    // clang-format on
    // At the login the same name stands for entering the program.
    if (form == u"frmEnterance_Door" && button == u"cmdDataOk")
        return {};
    for (const Row &row : rows)
        if (button == row.button)
            return row.icon;
    return {};
}

} // namespace zrv::look
