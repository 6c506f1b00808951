#pragma once

#include <QByteArrayView>
#include <QStringView>

namespace store {

/// Compares two texts in French alphabetical order, without regard to case: below 0, 0 or above 0. Blanks come first,
/// then signs, digits, letters; accents decide only between texts that are otherwise equal. The order is the
/// program's own, so that a file sorted on one machine reads the same on every other.
int CompareFrancais(QStringView a, QStringView b);
/// The same for texts as the file holds them.
int CompareFrancaisUtf8(QByteArrayView a, QByteArrayView b);

/// Whether the whole of \p texte fits the pattern \p modele, where * stands for any run of characters, ? for one and #
/// for one digit; case plays no part.
bool Ressemble(QStringView texte, QStringView modele);

} // namespace store
