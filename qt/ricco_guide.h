// The dots that lead the eye to a tab stop.
#pragma once

#include <QPainter>
#include <QTextBlock>
#include <QTextLayout>

namespace ambra {

/// Keeps with a paragraph's format what fills the room before each of its stops; a null character for
/// nothing.
void ricorda_guide(QTextBlockFormat& f, const QString& guide);
/// Draws those of one line of a paragraph that is laid out with its corner at `dove`.
void disegna_guide(QPainter& p, const QTextBlock& b, const QTextLine& linea, QPointF dove);

}  // namespace ambra
