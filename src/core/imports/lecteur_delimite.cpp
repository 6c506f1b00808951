#include "imports/lecteur_delimite.h"

#include <QBuffer>

#include <algorithm>
#include <array>

namespace recu {

namespace {

constexpr char guillemet = '"';

/// The likeliest sign first: it wins where two occur as often.
constexpr std::array separateurs{';', '\t', ',', '|'};

char separateurDe(const QByteArray &noms)
{
    std::array<int, separateurs.size()> nombres{};
    bool entreGuillemets = false;
    for (const char octet : noms) {
        if (octet == guillemet)
            entreGuillemets = !entreGuillemets;
        for (std::size_t i = 0; i < separateurs.size() && !entreGuillemets; ++i)
            nombres[i] += octet == separateurs[i];
    }
    return separateurs[std::size_t(std::ranges::max_element(nombres) - nombres.begin())];
}

bool blanc(char octet)
{
    return octet == ' ' || octet == '\t' || octet == '\n' || octet == '\r';
}

} // namespace

LecteurDelimite::LecteurDelimite(QIODevice &source)
    : m_flux(source)
{
    QByteArray noms = ligneDesNoms();
    m_separateur = separateurDe(noms);
    QBuffer memoire(&noms);
    memoire.open(QIODevice::ReadOnly);
    FluxOctets flux(memoire);
    litEnregistrement(flux);
    for (std::size_t i = 0; i < m_nombre; ++i)
        m_colonnes += champ(i);
}

/// First line with a text, as it stands: its separator is not known yet.
QByteArray LecteurDelimite::ligneDesNoms()
{
    QByteArray ligne;
    while (std::ranges::all_of(ligne, blanc)) {
        ligne.clear();
        m_longueur = 0;
        if (m_flux.regarde() == FluxOctets::fin)
            throw ErreurLecture(u"La ligne qui nomme les colonnes manque."_qs);
        while (m_flux.regarde() != FluxOctets::fin && !finDeLigne(m_flux.regarde()))
            ajoute(ligne, m_flux.lit());
        PasseFinDeLigne(m_flux);
    }
    return ligne;
}

bool LecteurDelimite::avance()
{
    do {
        if (m_flux.regarde() == FluxOctets::fin)
            return false;
        litEnregistrement(m_flux);
    } while (estVide());
    return true;
}

void LecteurDelimite::litEnregistrement(FluxOctets &flux)
{
    m_nombre = 0;
    m_longueur = 0;
    for (bool suite = true; suite;) {
        litChamp(flux);
        suite = flux.regarde() == m_separateur;
        if (suite)
            flux.lit();
    }
    PasseFinDeLigne(flux);
}

/// Reads a field up to its separator or to the end of the line, which stay.
void LecteurDelimite::litChamp(FluxOctets &flux)
{
    if (m_nombre == champsMax)
        throw ErreurLecture(u"Une ligne a trop de champs pour une liste."_qs);
    if (m_nombre == m_champs.size())
        m_champs.emplace_back();
    QByteArray &champ = m_champs[m_nombre++];
    champ.resize(0);
    if (flux.regarde() == guillemet)
        litGuillemets(flux, champ);
    for (int octet = flux.regarde(); octet != FluxOctets::fin && octet != m_separateur && !finDeLigne(octet);
         octet = flux.regarde())
        ajoute(champ, flux.lit());
}

void LecteurDelimite::litGuillemets(FluxOctets &flux, QByteArray &champ)
{
    flux.lit();
    for (;;) {
        const int octet = flux.lit();
        if (octet == FluxOctets::fin)
            throw ErreurLecture(u"Un guillemet n'est pas refermé."_qs);
        if (octet == guillemet) {
            if (flux.regarde() != guillemet)
                return;
            flux.lit();
        }
        ajoute(champ, octet);
    }
}

void LecteurDelimite::ajoute(QByteArray &champ, int octet)
{
    if (++m_longueur > longueurMax)
        throw ErreurLecture(u"Une ligne est trop longue pour une ligne de liste."_qs);
    champ += char(octet);
}

bool LecteurDelimite::estVide() const
{
    return std::all_of(m_champs.begin(), m_champs.begin() + qsizetype(m_nombre),
                       [](const QByteArray &champ) { return std::ranges::all_of(champ, blanc); });
}

QString LecteurDelimite::champ(std::size_t colonne) const
{
    return colonne < m_nombre ? DecodeTexte(m_champs[colonne]).trimmed() : QString();
}

} // namespace recu
