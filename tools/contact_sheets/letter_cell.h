// One letter in a cell of a contact sheet: each pen stroke in a colour of its own, its number and
// arrow where the boards show them, a small white dot where one run goes on with the other. A
// number without a clean place is yellow.
#pragma once

#include <QPainter>

#include "strokes/letter.h"

namespace bramlee {

/// In pixels of the sheet.
constexpr QSize kCell(400, 380);

/// The line above a cell and the frame around it.
void DrawCaption(QPainter& painter, const QString& text, const QRectF& cell);

/// What caption and margin leave of a cell.
QRectF RoomOf(const QRectF& cell);

/// Draws a pen stroke, in the colour of its number from 0, as wide as the pen is on the sheet.
void DrawStroke(QPainter& painter, const StrokePath& path, std::size_t stroke);

/// Draws that part of the letter's sheet as large as the cell allows, with a caption.
void DrawLetter(QPainter& painter, const Letter& letter, const Box& shown, const QRectF& cell);

}  // namespace bramlee
