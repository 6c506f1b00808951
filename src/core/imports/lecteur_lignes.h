#pragma once

#include "imports/texte_recu.h"

#include <optional>

namespace recu {

/// Reads a text file line by line. A line ends with LF, CR LF or CR, the last one also without.
class LecteurLignes
{
public:
    /// Bytes that a line may have; a longer one is no line of a list, and nobody has the memory to find its end.
    static constexpr qsizetype longueurMax = 65536;

    explicit LecteurLignes(QIODevice &source)
        : m_flux(source)
    {
    }

    /// Next line without its end, nothing behind the last one that holds more than blanks. Throws ErreurLecture.
    [[nodiscard]] std::optional<QString> suivante();
    /// Number of the line given last, or of the one that could not be read, from 1.
    qint64 numero() const { return m_lues - m_blanches - (m_attente ? 1 : 0); }
    /// Bytes read so far.
    qint64 octets() const { return m_flux.lus(); }

private:
    std::optional<QString> lit();

    FluxOctets m_flux;
    QByteArray m_ligne;
    qint64 m_lues = 0;
    qint64 m_blanches = 0; ///< Blank lines still to give before the waiting one.
    std::optional<QString> m_attente;
};

} // namespace recu
