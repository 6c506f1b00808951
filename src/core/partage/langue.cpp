#include "partage/langue.h"

#include <QDir>
#include <QFileInfo>

void ChargeLangue(Partage &partage)
{
    const auto chemin = [&](const QString &nom) { return QDir(partage.DossierProgramme).filePath(nom); };
    const QString iconeParDefaut = chemin(u"1.ico"_qs);

    const store::Recordset active = partage.BaseDonnees.OpenRecordset(u"select * from [traduc] where actif=true");
    if (active.Eof()) {
        partage.LangueCourante = 1;
        partage.Traducteur.clear();
        partage.IconeLangue = iconeParDefaut;
    } else {
        partage.LangueCourante = qint16(active[u"numero"].entier());
        partage.Traducteur = active[u"traducteur"].texte();
        partage.IconeLangue = chemin(active[u"icone"].texte());
        partage.mes.efface();
    }
    if (!QFileInfo(partage.IconeLangue).isFile())
        partage.IconeLangue = iconeParDefaut;

    store::Recordset textes = partage.BaseDonnees.OpenRecordset(u"select * from [langues] where lang = "_qs
                                                                + QString::number(partage.LangueCourante));
    for (; !textes.Eof(); textes.MoveNext()) {
        if (textes[u"mes"].estNull())
            throw store::Erreur(store::Erreur::ValeurNulle,
                                u"Le message %1 n'a pas de texte."_qs.arg(textes[u"num"].texte()));
        partage.mes.pose(int(textes[u"num"].entier()), textes[u"mes"].texte());
    }
}
