#include "store/valeur.h"

#include "store/erreur.h"

#include <cmath>

namespace store {

namespace {

[[noreturn]] void refuseNull()
{
    throw Erreur(Erreur::ValeurNulle, u"Une valeur absente a été lue comme un nombre ou une date."_qs);
}

/// Length of the number at the start of \p texte, sign, point and exponent included; 0 when there is none. Blanks
/// before it count as no number.
qsizetype longueurNombre(QStringView texte)
{
    qsizetype i = 0;
    const auto chiffres = [&] {
        const qsizetype debut = i;
        while (i < texte.size() && texte[i] >= u'0' && texte[i] <= u'9')
            ++i;
        return i - debut;
    };
    if (i < texte.size() && (texte[i] == u'-' || texte[i] == u'+'))
        ++i;
    qsizetype nombre = chiffres();
    if (i < texte.size() && texte[i] == u'.') {
        ++i;
        nombre += chiffres();
    }
    if (nombre == 0)
        return 0;
    const qsizetype finMantisse = i;
    if (i < texte.size() && (texte[i] == u'e' || texte[i] == u'E')) {
        ++i;
        if (i < texte.size() && (texte[i] == u'-' || texte[i] == u'+'))
            ++i;
        if (chiffres() == 0)
            return finMantisse;
    }
    return i;
}

qint64 arrondi(double valeur)
{
    constexpr double borne = 9.2e18;
    if (!std::isfinite(valeur) || std::abs(valeur) > borne)
        throw Erreur(Erreur::Depassement, u"Un nombre dépasse la capacité d'un champ."_qs);
    return std::llrint(valeur);
}

} // namespace

qint64 Valeur::entier() const
{
    switch (m_valeur.index()) {
    case 1:
        return std::get<qint64>(m_valeur);
    case 2:
        return arrondi(std::get<double>(m_valeur));
    case 3:
        return arrondi(Val(std::get<QString>(m_valeur)));
    case 4:
        return std::get<bool>(m_valeur) ? -1 : 0;
    case 5:
        return std::get<QDate>(m_valeur).toJulianDay();
    default:
        refuseNull();
    }
}

double Valeur::reel() const
{
    if (estReel())
        return std::get<double>(m_valeur);
    if (estTexte())
        return Val(std::get<QString>(m_valeur));
    return static_cast<double>(entier());
}

QString Valeur::texte() const
{
    switch (m_valeur.index()) {
    case 1:
        return QString::number(std::get<qint64>(m_valeur));
    case 2:
        return QString::number(std::get<double>(m_valeur), 'g', 15);
    case 3:
        return std::get<QString>(m_valeur);
    case 4:
        return std::get<bool>(m_valeur) ? u"-1"_qs : u"0"_qs;
    case 5:
        return std::get<QDate>(m_valeur).toString(u"dd/MM/yyyy");
    default:
        return {};
    }
}

bool Valeur::booleen() const
{
    return estBooleen() ? std::get<bool>(m_valeur) : entier() != 0;
}

QDate Valeur::date() const
{
    if (estDate())
        return std::get<QDate>(m_valeur);
    if (estNull())
        refuseNull();
    const QDate lue = LireDate(texte());
    if (!lue.isValid())
        throw Erreur(Erreur::Conversion, u"« %1 » n'est pas une date."_qs.arg(texte()));
    return lue;
}

double Val(QStringView texte)
{
    const QStringView reste = texte.trimmed();
    return reste.left(longueurNombre(reste)).toDouble();
}

bool EstNumerique(QStringView texte)
{
    const QString reste = texte.trimmed().toString().replace(u',', u'.');
    return !reste.isEmpty() && longueurNombre(reste) == reste.size();
}

QDate LireDate(QStringView texte, int annee)
{
    QString propre = texte.trimmed().toString();
    for (QChar &c : propre) {
        if (c == u'.' || c == u'-' || c == u' ')
            c = u'/';
    }
    const QStringList parties = propre.split(u'/');
    if (parties.size() < 2 || parties.size() > 3)
        return {};
    int nombres[3] = {0, 0, annee};
    for (qsizetype i = 0; i < parties.size(); ++i) {
        const QString &partie = parties[i];
        const auto chiffre = [](QChar c) { return c >= u'0' && c <= u'9'; };
        if (partie.isEmpty() || partie.size() > 4 || !std::all_of(partie.begin(), partie.end(), chiffre))
            return {};
        nombres[i] = partie.toInt();
    }
    if (parties.size() == 3 && parties[0].size() == 4)
        return QDate(nombres[0], nombres[1], nombres[2]);
    if (parties.size() == 3 && parties[2].size() <= 2)
        nombres[2] += nombres[2] < 30 ? 2000 : 1900;
    if (nombres[2] < 100)
        return {};
    return QDate(nombres[2], nombres[1], nombres[0]);
}

} // namespace store
