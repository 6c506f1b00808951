#include "partage/routines.h"

QString ZeroPad(const QString &valeur, int largeur)
{
    return (QString(largeur, u'0') + valeur).right(largeur);
}

QString ZeroPad(qint64 valeur, int largeur)
{
    return ZeroPad(QString::number(valeur), largeur);
}

QString FormateNombre(double nombre)
{
    return QString::number(nombre, 'g', 10).replace(u'.', u',');
}

QString LibellePluriel(const Partage &partage, double nombre, const QString &mot)
{
    if (partage.LangueCourante != 1)
        return {};
    return FormateNombre(nombre) + u' ' + mot + (nombre > 1 ? u"s"_qs : QString());
}

QString TexteScore(const Partage &partage, const store::Valeur &score)
{
    for (int code = 1; code <= 3; ++code) {
        if (score == store::Valeur(-code))
            return partage.mes(42 + code);
    }
    return score.texte();
}

QString TailleEquipe(int joueurs)
{
    switch (joueurs) {
    case 1:
        return u"Tête à tête "_qs;
    case 2:
        return u"Doublettes "_qs;
    default:
        return u"Triplettes "_qs;
    }
}

QString SansApostrophe(QString texte)
{
    return texte.remove(u'\'');
}

QString FormatDate(const QString &format)
{
    QString qt = format.isEmpty() ? u"dd/mm/yyyy"_qs : format.toLower();
    return qt.replace(u'm', u'M');
}

QString FormateDate(QDate date, const QString &format)
{
    return date.toString(FormatDate(format));
}

QString FormateDate(const Partage &partage, const store::Valeur &date)
{
    return date.estNull() ? QString() : FormateDate(date.date(), partage.mes(117));
}

qint64 CompteEquipesStade(Partage &partage, qint64 concours, int seuil, int tableau)
{
    const QString compteur = tableau == 1 ? u" and principal >="_qs : u" and complement >="_qs;
    return ValeurUnique(partage,
                        u"select count(equipe) as nbe from evolution where concours = "_qs + QString::number(concours)
                            + compteur + QString::number(seuil))
        .entier();
}
