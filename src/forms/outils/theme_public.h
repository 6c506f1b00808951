#pragma once

#include <QColor>

/// Colours of the public view. Every ink can be read on both grounds from far away: at least 7 to 1.
struct ThemePublic
{
    QColor fond;
    QColor bande; ///< Ground of every other line.
    QColor encre;
    QColor discrete;
    QColor accent; ///< Titles and headings.
    QColor gagnante;
    QColor fondDrapeau;
    QColor encreDrapeau;
    QColor glissiere; ///< What the bar of the page's time moves on.
};

inline constexpr ThemePublic themeClair{
    .fond = QColor(0xFF, 0xFF, 0xFF),
    .bande = QColor(0xEC, 0xF1, 0xF5),
    .encre = QColor(0x10, 0x18, 0x20),
    .discrete = QColor(0x3C, 0x48, 0x53),
    .accent = QColor(0x0B, 0x3D, 0x66),
    .gagnante = QColor(0x0A, 0x4F, 0x1E),
    .fondDrapeau = QColor(0x0B, 0x3D, 0x66),
    .encreDrapeau = QColor(0xFF, 0xFF, 0xFF),
    .glissiere = QColor(0xC9, 0xD5, 0xDF),
};

inline constexpr ThemePublic themeSombre{
    .fond = QColor(0x0B, 0x11, 0x16),
    .bande = QColor(0x18, 0x23, 0x2D),
    .encre = QColor(0xFF, 0xFF, 0xFF),
    .discrete = QColor(0xC8, 0xD2, 0xDB),
    .accent = QColor(0x8F, 0xD0, 0xFF),
    .gagnante = QColor(0x7B, 0xE4, 0x95),
    .fondDrapeau = QColor(0xFF, 0xD3, 0x4D),
    .encreDrapeau = QColor(0x10, 0x18, 0x20),
    .glissiere = QColor(0x33, 0x41, 0x4E),
};
