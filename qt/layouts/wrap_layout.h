// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLayout>

#include <memory>
#include <vector>

namespace zrv {

/// Lays its items beside each other, from the right in a window that runs so, and begins a new line where one is full.
/// addWidget puts a widget on the current line; what is given a whole line shares it with nothing.
class WrapLayout : public QLayout {
public:
    ~WrapLayout() override;

    void addItem(QLayoutItem *item) override;
    void addWholeLine(QWidget *widget);
    void addWholeLine(QLayout *layout);

    [[nodiscard]] int count() const override;
    [[nodiscard]] QLayoutItem *itemAt(int index) const override;
    QLayoutItem *takeAt(int index) override;
    [[nodiscard]] Qt::Orientations expandingDirections() const override;
    [[nodiscard]] bool hasHeightForWidth() const override;
    [[nodiscard]] int heightForWidth(int width) const override;
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSize() const override;
    void setGeometry(const QRect &room) override;

private:
    struct Placed {
        std::unique_ptr<QLayoutItem> item;
        bool wholeLine = false;
    };
    enum class Move { Measure, Place };

    [[nodiscard]] int arrange(const QRect &room, Move move) const;
    [[nodiscard]] static int heightOf(const QLayoutItem &item, int width);

    std::vector<Placed> m_items;
    bool m_nextTakesLine = false;
};

} // namespace zrv
