#pragma once

#include "maintenance/texte_recu.h"

#include <optional>

namespace recu {

/// Reads a text file line by line. A line ends with LF, CR LF or CR, the last one also without.
class LecteurLignes
{
public:
    /// Bytes that a line may have; a longer one is no line of a list, and nobody has the memory to find its end.
    static constexpr qsizetype longueurMax = 65536;

    explicit LecteurLignes(QIODevice &source) : m_flux(source) {}

    /// Next line without its end, nothing behind the last. Throws ErreurLecture.
    std::optional<QString> suivante();
    /// Number of the line read last, from 1.
    qint64 numero() const { return m_numero; }

private:
    FluxOctets m_flux;
    QByteArray m_ligne;
    qint64 m_numero = 0;
};

} // namespace recu
