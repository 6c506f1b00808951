#include "store/collation.h"

#include <QString>

#include <array>
#include <optional>
#include <span>

namespace store {

namespace {

constexpr quint32 finDeTexte = 0;

/// Weights of the ASCII characters: control characters, blank, signs, digits, letters.
constexpr std::array<quint32, 128> poidsAscii()
{
    std::array<quint32, 128> poids{};
    quint32 suivant = 1;
    const auto estChiffre = [](int c) { return c >= '0' && c <= '9'; };
    const auto estLettre = [](int c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); };
    for (int c = 0; c < 128; ++c) {
        if (!estChiffre(c) && !estLettre(c))
            poids[std::size_t(c)] = suivant++;
    }
    for (std::size_t c = '0'; c <= '9'; ++c)
        poids[c] = suivant++;
    for (std::size_t c = 'a'; c <= 'z'; ++c) {
        poids[c] = suivant;
        poids[c - 'a' + 'A'] = suivant++;
    }
    return poids;
}

constexpr auto poidsDesAscii = poidsAscii();

int signe(quint32 a, quint32 b)
{
    return a < b ? -1 : int(a > b);
}

/// Order of two texts as far as it shows without taking characters apart: equal units are passed over, and two
/// different ASCII letters decide, whatever accents stand before them. Nothing where an accent may have its say.
template<typename Unite>
std::optional<int> compareSansAccents(std::span<const Unite> a, std::span<const Unite> b)
{
    const std::size_t commun = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < commun; ++i) {
        if (a[i] == b[i])
            continue;
        if (a[i] >= poidsDesAscii.size() || b[i] >= poidsDesAscii.size())
            return std::nullopt;
        if (const int ordre = signe(poidsDesAscii[a[i]], poidsDesAscii[b[i]]); ordre != 0)
            return ordre;
    }
    if (a.size() == b.size())
        return 0;
    const Unite suite = a.size() > commun ? a[commun] : b[commun];
    if (suite >= poidsDesAscii.size())
        return std::nullopt; // perhaps a mark on the last letter
    return a.size() > b.size() ? 1 : -1;
}

/// Walks the base characters of a decomposed text, leaving out its accents.
class Lettres
{
public:
    explicit Lettres(QStringView texte)
    {
        QString etendu;
        etendu.reserve(texte.size() + 4);
        for (const QChar c : texte) {
            switch (c.unicode()) {
            case u'œ':
            case u'Œ':
                etendu += u"oe";
                break;
            case u'æ':
            case u'Æ':
                etendu += u"ae";
                break;
            case u'ß':
                etendu += u"ss";
                break;
            default:
                etendu += c;
            }
        }
        m_texte = etendu.normalized(QString::NormalizationForm_D).toCaseFolded();
    }

    quint32 suivante()
    {
        while (m_place < m_texte.size()) {
            const QChar c = m_texte[m_place++];
            if (c.category() == QChar::Mark_NonSpacing)
                m_accents += c;
            else
                return c.unicode() < 128 ? poidsDesAscii[c.unicode()] : 1000u + c.unicode();
        }
        return finDeTexte;
    }

    /// Accents met so far, each after a mark of the place where it stood.
    const QString &accents() const { return m_accents; }
    void marque() { m_accents += QChar(u'\x1'); }

private:
    QString m_texte;
    QString m_accents;
    qsizetype m_place = 0;
};

int compareLettres(QStringView a, QStringView b)
{
    Lettres gauche(a);
    Lettres droite(b);
    while (true) {
        const quint32 poidsGauche = gauche.suivante();
        const quint32 poidsDroite = droite.suivante();
        if (poidsGauche != poidsDroite)
            return signe(poidsGauche, poidsDroite);
        if (poidsGauche == finDeTexte)
            break;
        gauche.marque();
        droite.marque();
    }
    return gauche.accents().compare(droite.accents());
}

} // namespace

int CompareFrancais(QStringView a, QStringView b)
{
    if (const auto ordre = compareSansAccents(std::span(a.utf16(), std::size_t(a.size())),
                                              std::span(b.utf16(), std::size_t(b.size()))))
        return *ordre;
    return compareLettres(a, b);
}

int CompareFrancaisUtf8(QByteArrayView a, QByteArrayView b)
{
    const auto octets = [](QByteArrayView texte) {
        return std::span(reinterpret_cast<const uchar *>(texte.data()), std::size_t(texte.size()));
    };
    if (const auto ordre = compareSansAccents(octets(a), octets(b)))
        return *ordre;
    return compareLettres(QString::fromUtf8(a), QString::fromUtf8(b));
}

bool Ressemble(QStringView texte, QStringView modele)
{
    qsizetype t = 0;
    qsizetype m = 0;
    qsizetype reprise = -1;
    qsizetype texteReprise = 0;
    while (t < texte.size()) {
        const bool joker = m < modele.size() && modele[m] == u'*';
        if (joker) {
            reprise = ++m;
            texteReprise = t;
            continue;
        }
        const bool accord = m < modele.size()
            && (modele[m] == u'?' || (modele[m] == u'#' && texte[t] >= u'0' && texte[t] <= u'9')
                || modele[m].toCaseFolded() == texte[t].toCaseFolded());
        if (accord) {
            ++t;
            ++m;
        } else if (reprise >= 0) {
            m = reprise;
            t = ++texteReprise;
        } else {
            return false;
        }
    }
    while (m < modele.size() && modele[m] == u'*')
        ++m;
    return m == modele.size();
}

} // namespace store
