#include "commun/base_essai.h"

#include <QFile>

namespace {

QByteArray contenuVierge()
{
    QTemporaryDir dossier;
    const QString fichier = dossier.filePath(u"vierge.mdb"_qs);
    QFile schema(QStringLiteral(VARLOTOUR_DONNEES "/schema.sql"));
    if (!schema.open(QIODevice::ReadOnly))
        qFatal("schema.sql is missing");
    {
        store::BaseNative base(fichier, u"qz7tkn42"_qs, store::BaseNative::Mode::Creation);
        base.executeScript(QString::fromUtf8(schema.readAll()));
    }
    QFile cree(fichier);
    cree.open(QIODevice::ReadOnly);
    return cree.readAll();
}

} // namespace

BaseEssai::BaseEssai()
{
    static const QByteArray vierge = contenuVierge();
    QFile copie(fichier());
    if (!copie.open(QIODevice::WriteOnly) || copie.write(vierge) != vierge.size())
        qFatal("no room for a test base");
}

store::Database BaseEssai::ouvre() const
{
    return store::DBEngine().Workspaces(0).OpenDatabase(fichier(), false, false, connexion());
}
