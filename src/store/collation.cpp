#include "store/collation.h"

#include <QString>

#include <array>

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
    for (int c = '0'; c <= '9'; ++c)
        poids[std::size_t(c)] = suivant++;
    for (int c = 'a'; c <= 'z'; ++c) {
        poids[std::size_t(c)] = suivant;
        poids[std::size_t(c - 'a' + 'A')] = suivant++;
    }
    return poids;
}

constexpr auto poidsDesAscii = poidsAscii();

bool estAscii(QStringView texte)
{
    return std::all_of(texte.begin(), texte.end(), [](QChar c) { return c.unicode() < 128; });
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
            case u'œ': case u'Œ': etendu += u"oe"; break;
            case u'æ': case u'Æ': etendu += u"ae"; break;
            case u'ß': etendu += u"ss"; break;
            default: etendu += c;
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

int signe(quint32 a, quint32 b)
{
    return a < b ? -1 : int(a > b);
}

} // namespace

int CompareFrancais(QStringView a, QStringView b)
{
    if (estAscii(a) && estAscii(b)) {
        const qsizetype commun = std::min(a.size(), b.size());
        for (qsizetype i = 0; i < commun; ++i) {
            const int ordre = signe(poidsDesAscii[a[i].unicode()], poidsDesAscii[b[i].unicode()]);
            if (ordre != 0)
                return ordre;
        }
        return signe(quint32(a.size()), quint32(b.size()));
    }
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
