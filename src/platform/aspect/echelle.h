#pragma once

#include <QSize>

#include <memory>

class QApplication;

/// Room in pixels that the forms are made for: the screen of a club's laptop.
inline constexpr QSize ecranDeClub{1366, 768};

/// By what the scale of a screen of \p place pixels, as the program sees them at \p echelle, has to be multiplied for
/// ecranDeClub to fit: at most 1, and never so little that texts get smaller than at a scale of 1.
double facteurQuiTient(const QSize &place, double echelle);

/// Opens the application. Where the desktop enlarges everything so much that forms would leave the screen, the program
/// enlarges less.
std::unique_ptr<QApplication> ouvreApplication(int &argc, char **argv);
