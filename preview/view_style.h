#pragma once
#include <QColor>

// Colours shared by the preview views.
namespace pv::style {
inline QColor background() { return QColor(248, 248, 250); }
inline QColor text() { return QColor(110, 110, 120); }
inline QColor axis() { return QColor(90, 90, 100); }
inline QColor grid() { return QColor(225, 225, 232); }
inline QColor wave() { return QColor(124, 58, 237); }
inline QColor clipped() { return QColor(220, 38, 38); }
} // namespace pv::style
