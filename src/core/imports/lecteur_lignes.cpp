#include "imports/lecteur_lignes.h"

namespace recu {

std::optional<QString> LecteurLignes::suivante()
{
    if (!m_attente) {
        // Only what follows them tells whether blank lines are part of the text or its end.
        qint64 blanches = 0;
        std::optional<QString> ligne = lit();
        for (; ligne && ligne->trimmed().isEmpty(); ligne = lit())
            ++blanches;
        if (!ligne)
            return std::nullopt;
        m_blanches = blanches;
        m_attente = std::move(ligne);
    }
    if (m_blanches == 0)
        return std::exchange(m_attente, std::nullopt);
    --m_blanches;
    return QString();
}

std::optional<QString> LecteurLignes::lit()
{
    if (m_flux.regarde() == FluxOctets::fin)
        return std::nullopt;
    ++m_lues;
    m_ligne.resize(0);
    for (int octet = m_flux.regarde(); octet != FluxOctets::fin && !finDeLigne(octet); octet = m_flux.regarde()) {
        if (m_ligne.size() == longueurMax)
            throw ErreurLecture(u"La ligne est trop longue pour une liste."_qs);
        m_ligne += char(m_flux.lit());
    }
    PasseFinDeLigne(m_flux);
    return DecodeTexte(m_ligne);
}

} // namespace recu
