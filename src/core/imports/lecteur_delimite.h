#pragma once

#include "imports/texte_recu.h"

#include <QStringList>

#include <vector>

namespace recu {

/// Reads a delimited text whose first line names the columns. What separates them is the sign that occurs most in that
/// line: semicolon, tab, comma or bar. A field in double quotes may hold the separator and line ends, a quote inside is
/// doubled. Lines without any text are passed over.
class LecteurDelimite
{
public:
    /// Bytes and fields that a row may have.
    static constexpr qsizetype longueurMax = 65536;
    static constexpr std::size_t champsMax = 500;

    /// Reads the line of the names. Throws ErreurLecture, also when there is none.
    explicit LecteurDelimite(QIODevice &source);

    const QStringList &colonnes() const { return m_colonnes; }
    /// Goes to the next row; false behind the last. Throws ErreurLecture.
    [[nodiscard]] bool avance();
    /// Field \p colonne, from 0, of the current row without the blanks around it; empty where the row ends before it.
    QString champ(std::size_t colonne) const;

private:
    QByteArray ligneDesNoms();
    void litEnregistrement(FluxOctets &flux);
    void litChamp(FluxOctets &flux);
    void litGuillemets(FluxOctets &flux, QByteArray &champ);
    void ajoute(QByteArray &champ, int octet);
    bool estVide() const;

    FluxOctets m_flux;
    char m_separateur = ';';
    QStringList m_colonnes;
    std::vector<QByteArray> m_champs; ///< Never gets shorter: the rows to come use the room of those before.
    std::size_t m_nombre = 0;
    qsizetype m_longueur = 0;
};

} // namespace recu
