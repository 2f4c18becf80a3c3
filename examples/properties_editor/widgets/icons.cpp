#include "icons.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>
#include <QPolygonF>

#include <algorithm>
#include <array>
#include <initializer_list>

namespace Editor {
namespace {

constexpr qreal extent = 24; // of the grid that the icons are drawn on

void line(QPainterPath &path, std::initializer_list<QPointF> points) {
    path.moveTo(*points.begin());
    for (const QPointF &point : points)
        path.lineTo(point);
}

void circle(QPainterPath &path, qreal x, qreal y, qreal radius) {
    path.addEllipse(QPointF(x, y), radius, radius);
}

// The angles are in degrees, counterclockwise from three o'clock.
void arc(QPainterPath &path, qreal x, qreal y, qreal radius, qreal from, qreal length) {
    const QRectF around(x - radius, y - radius, 2 * radius, 2 * radius);
    path.arcMoveTo(around, from);
    path.arcTo(around, from, length);
}

void page(QPainterPath &path) {
    line(path, {{13, 3}, {5, 3}, {5, 21}, {19, 21}, {19, 9}, {13, 3}, {13, 9}, {19, 9}});
}

void disk(QPainterPath &path) {
    line(path, {{4, 4}, {16, 4}, {20, 8}, {20, 20}, {4, 20}, {4, 4}});
    line(path, {{8, 4}, {8, 9}, {15, 9}, {15, 4}});
}

// The arrow of undo, mirrored for redo.
void turn(QPainterPath &path, qreal left, qreal direction) {
    const auto x = [=](qreal distance) { return left + direction * distance; };
    line(path, {{x(5), 4}, {x(0), 9}, {x(5), 14}});
    path.moveTo(x(0), 9);
    path.cubicTo(x(9), 8, x(16), 10, x(16), 20);
}

using Draw = void (*)(QPainterPath &path);

// In the order of Symbol.
constexpr std::array<Draw, std::size_t(Symbol::Question) + 1> drawings{
    [](QPainterPath &path) { // New
        page(path);
        line(path, {{12, 12}, {12, 18}});
        line(path, {{9, 15}, {15, 15}});
    },
    [](QPainterPath &path) { // Open
        line(path, {{3, 19}, {3, 5}, {9, 5}, {11, 8}, {19, 8}, {19, 11}});
        line(path, {{3, 19}, {7, 11}, {22, 11}, {18, 19}, {3, 19}});
    },
    [](QPainterPath &path) { // Recent
        circle(path, 12, 12, 9);
        line(path, {{12, 6}, {12, 12}, {16, 15}});
    },
    [](QPainterPath &path) { // Save
        disk(path);
        line(path, {{8, 20}, {8, 14}, {16, 14}, {16, 20}});
    },
    [](QPainterPath &path) { // SaveAs
        disk(path);
        line(path, {{8, 17}, {9, 14}, {15, 12}, {14, 16}, {8, 17}});
    },
    [](QPainterPath &path) { // Publish
        line(path, {{4, 14}, {4, 20}, {20, 20}, {20, 14}});
        line(path, {{12, 16}, {12, 3}});
        line(path, {{7, 8}, {12, 3}, {17, 8}});
    },
    [](QPainterPath &path) { // Reload
        arc(path, 12, 12, 8, 60, -300);
        line(path, {{16, 1}, {16.5, 5.5}, {12, 6.5}});
    },
    [](QPainterPath &path) { // Quit
        line(path, {{14, 8}, {14, 4}, {4, 4}, {4, 20}, {14, 20}, {14, 16}});
        line(path, {{9, 12}, {21, 12}});
        line(path, {{17, 8}, {21, 12}, {17, 16}});
    },
    [](QPainterPath &path) { turn(path, 4, 1); },   // Undo
    [](QPainterPath &path) { turn(path, 20, -1); }, // Redo
    [](QPainterPath &path) {                        // Identity
        path.addRoundedRect(2, 5, 20, 14, 2, 2);
        circle(path, 8, 10.5, 2);
        arc(path, 8, 17, 3.5, 10, 160);
        line(path, {{14, 10}, {19, 10}});
        line(path, {{14, 14}, {19, 14}});
    },
    [](QPainterPath &path) { // Languages
        circle(path, 12, 12, 9);
        path.addEllipse(QPointF(12, 12), 4, 9);
        line(path, {{3, 12}, {21, 12}});
    },
    [](QPainterPath &path) { // Translation
        line(path, {{3, 8}, {20, 8}});
        line(path, {{16, 4}, {20, 8}, {16, 12}});
        line(path, {{21, 16}, {4, 16}});
        line(path, {{8, 12}, {4, 16}, {8, 20}});
    },
    [](QPainterPath &path) { // Requirements
        path.addRoundedRect(6, 6, 12, 12, 1.5, 1.5);
        path.addRect(10, 10, 4, 4);
        for (const qreal at : {9.0, 15.0}) {
            line(path, {{at, 2.5}, {at, 6}});
            line(path, {{at, 18}, {at, 21.5}});
            line(path, {{2.5, at}, {6, at}});
            line(path, {{18, at}, {21.5, at}});
        }
    },
    [](QPainterPath &path) { // Behaviors
        circle(path, 12, 12, 9);
        line(path, {{10, 8}, {16, 12}, {10, 16}, {10, 8}});
    },
    [](QPainterPath &path) { // Dialogs
        line(path, {{3, 4}, {21, 4}, {21, 16}, {12, 16}, {7, 21}, {7, 16}, {3, 16}, {3, 4}});
        line(path, {{7, 8}, {17, 8}});
        line(path, {{7, 12}, {14, 12}});
    },
    [](QPainterPath &path) { // Services
        for (const qreal top : {3.5, 13.5}) {
            path.addRoundedRect(3, top, 18, 7, 1.5, 1.5);
            line(path, {{7, top + 3.5}, {8, top + 3.5}});
            line(path, {{12, top + 3.5}, {17, top + 3.5}});
        }
    },
    [](QPainterPath &path) { // Review
        path.moveTo(2, 12);
        path.cubicTo(7, 4, 17, 4, 22, 12);
        path.cubicTo(17, 20, 7, 20, 2, 12);
        circle(path, 12, 12, 3);
    },
    [](QPainterPath &path) { // Find
        circle(path, 10, 10, 7);
        line(path, {{15, 15}, {21, 21}});
    },
    [](QPainterPath &path) { // Add
        line(path, {{12, 4}, {12, 20}});
        line(path, {{4, 12}, {20, 12}});
    },
    [](QPainterPath &path) {
        line(path, {{4, 12}, {20, 12}});
    }, // Remove
    [](QPainterPath &path) {
        line(path, {{4, 13}, {10, 19}, {20, 5}});
    },                       // Check
    [](QPainterPath &path) { // Clear
        line(path, {{6, 6}, {18, 18}});
        line(path, {{18, 6}, {6, 18}});
    },
    [](QPainterPath &path) { // Error
        line(path, {{8.5, 8.5}, {15.5, 15.5}});
        line(path, {{15.5, 8.5}, {8.5, 15.5}});
    },
    [](QPainterPath &path) { // Warning
        line(path, {{12, 9}, {12, 14}});
        line(path, {{12, 17.9}, {12, 18.1}});
    },
    [](QPainterPath &path) { // Note
        line(path, {{12, 6.9}, {12, 7.1}});
        line(path, {{12, 11}, {12, 17}});
    },
    [](QPainterPath &path) { // Question
        arc(path, 12, 9, 3, 180, -225);
        line(path, {{14, 11.2}, {12, 13.3}, {12, 14.5}});
        line(path, {{12, 17.9}, {12, 18.1}});
    },
};

// Severity signs have a meaningful background color and a light foreground.
QColor signColor(Symbol symbol) {
    switch (symbol) {
    case Symbol::Error:
        return {0xd6, 0x2f, 0x3a};
    case Symbol::Warning:
        return {0xc0, 0x7a, 0x00};
    case Symbol::Note:
    case Symbol::Question:
        return {0x2f, 0x7a, 0xd6};
    default:
        return {};
    }
}

QColor lineColor(QIcon::Mode mode) {
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Selected)
        return palette.color(QPalette::HighlightedText);
    return palette.color(mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active,
                         QPalette::WindowText);
}

class SymbolEngine : public QIconEngine {
public:
    explicit SymbolEngine(Symbol symbol)
        : m_symbol(symbol) {}

    QIconEngine *clone() const override { return new SymbolEngine(m_symbol); }
    QString key() const override { return QStringLiteral("Editor::SymbolEngine"); }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State) override {
        const int side = std::min(rect.width(), rect.height());
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->translate(rect.x() + (rect.width() - side) / 2.0,
                           rect.y() + (rect.height() - side) / 2.0);
        painter->scale(side / extent, side / extent);
        QColor pen = lineColor(mode);
        if (const QColor color = signColor(m_symbol); color.isValid()) {
            paintSign(*painter, color);
            pen = Qt::white;
        }
        QPainterPath path;
        drawings.at(std::size_t(m_symbol))(path);
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(pen, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter->drawPath(path);
        painter->restore();
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override {
        QPixmap pixmap(size);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), size), mode, state);
        return pixmap;
    }

private:
    void paintSign(QPainter &painter, const QColor &color) const {
        painter.setBrush(color);
        painter.setPen(QPen(color, 2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        if (m_symbol == Symbol::Warning)
            painter.drawPolygon(QPolygonF(QVector<QPointF>{{12, 3}, {22, 21}, {2, 21}}));
        else
            painter.drawEllipse(QPointF(12, 12), 10, 10);
    }

    Symbol m_symbol;
};

} // namespace

QIcon iconOf(Symbol symbol) {
    return QIcon(new SymbolEngine(symbol));
}

} // namespace Editor
