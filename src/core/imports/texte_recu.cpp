#include "imports/texte_recu.h"

#include <QIODevice>
#include <QStringDecoder>

#include <algorithm>
#include <array>

namespace recu {

namespace {

constexpr qint64 tailleBloc = 65536;
constexpr unsigned char premierAccent = 0x80;

/// The characters of Windows-1252 from 0x80 to 0x9F; the others are those of Latin-1.
constexpr std::array<char16_t, 32> signes1252{0x20AC, 0xFFFD, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                              0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0xFFFD, 0x017D, 0xFFFD,
                                              0xFFFD, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                              0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0xFFFD, 0x017E, 0x0178};

QString decode1252(QByteArrayView octets)
{
    QString texte = QString::fromLatin1(octets);
    for (QChar &caractere : texte) {
        const unsigned place = caractere.unicode() - premierAccent;
        if (place < signes1252.size())
            caractere = QChar(signes1252[place]);
    }
    return texte;
}

} // namespace

QString DecodeTexte(QByteArrayView octets)
{
    const bool sansAccent = std::none_of(octets.begin(), octets.end(),
                                         [](char octet) { return static_cast<unsigned char>(octet) >= premierAccent; });
    if (sansAccent)
        return QString::fromLatin1(octets);
    QStringDecoder utf8(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
    const QString texte = utf8(octets);
    return utf8.hasError() ? decode1252(octets) : texte;
}

FluxOctets::FluxOctets(QIODevice &source)
    : m_source(source)
{
}

bool FluxOctets::remplit()
{
    if (m_fini)
        return false;
    m_avant += m_bloc.size();
    m_bloc.resize(tailleBloc);
    const qint64 lus = m_source.read(m_bloc.data(), tailleBloc);
    if (lus < 0)
        throw ErreurLecture(u"La lecture du fichier a échoué : %1."_qs.arg(m_source.errorString()));
    m_bloc.truncate(lus);
    m_place = 0;
    m_fini = lus == 0;
    if (m_bloc.contains('\0'))
        throw ErreurLecture(u"Le fichier n'est pas un fichier de texte."_qs);
    if (std::exchange(m_debut, false) && m_bloc.startsWith("\xEF\xBB\xBF"))
        m_place = 3;
    return m_place < m_bloc.size() || remplit();
}

void PasseFinDeLigne(FluxOctets &flux)
{
    if (flux.lit() == '\r' && flux.regarde() == '\n')
        flux.lit();
}

} // namespace recu
