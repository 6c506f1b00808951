#include "store/dialecte.h"

#include "store/erreur.h"

namespace store {

namespace {

struct Jeton
{
    enum Genre { Mot, Nom, Texte, Nombre, Signe };
    Genre genre;
    QString texte;

    bool estMot(QStringView mot) const { return genre == Mot && texte.compare(mot, Qt::CaseInsensitive) == 0; }
    bool estSigne(QStringView signe) const { return genre == Signe && texte == signe; }
};

using Jetons = std::vector<Jeton>;

[[noreturn]] void refuse(const QString &raison, QStringView sql)
{
    throw Erreur(Erreur::Instruction, raison + u" : "_qs + sql.left(200).toString());
}

bool commenceMot(QChar c)
{
    return c.isLetter() || c == u'_';
}

bool continueMot(QChar c)
{
    return c.isLetterOrNumber() || c == u'_' || c.category() == QChar::Mark_NonSpacing;
}

/// Cuts a statement into words, bracketed names, quoted texts, numbers and signs.
class Decoupe
{
public:
    explicit Decoupe(QStringView sql)
        : m_sql(sql)
    {
    }

    Jetons jetons()
    {
        Jetons resultat;
        while (m_place < m_sql.size()) {
            const QChar c = m_sql[m_place];
            if (c.isSpace())
                ++m_place;
            else if (c == u'\'')
                resultat.push_back({Jeton::Texte, jusquaFermeture(c)});
            else if (c == u'[')
                resultat.push_back({Jeton::Nom, jusquaFermeture(u']')});
            else if (commenceMot(c))
                resultat.push_back({Jeton::Mot, tantQue(continueMot)});
            else if ((c >= u'0' && c <= u'9') || c == u'.')
                resultat.push_back({Jeton::Nombre, nombre()});
            else
                resultat.push_back({Jeton::Signe, signe()});
        }
        return resultat;
    }

private:
    QString jusquaFermeture(QChar fermeture)
    {
        QString contenu;
        for (qsizetype i = m_place + 1; i < m_sql.size(); ++i) {
            if (m_sql[i] != fermeture) {
                contenu += m_sql[i];
            } else if (fermeture != u']' && i + 1 < m_sql.size() && m_sql[i + 1] == fermeture) {
                contenu += fermeture;
                ++i;
            } else {
                m_place = i + 1;
                return contenu;
            }
        }
        refuse(u"Un guillemet ou un crochet n'est pas refermé"_qs, m_sql);
    }

    template<typename Condition>
    QString tantQue(Condition condition)
    {
        const qsizetype debut = m_place;
        while (m_place < m_sql.size() && condition(m_sql[m_place]))
            ++m_place;
        return m_sql.mid(debut, m_place - debut).toString();
    }

    QString nombre()
    {
        QString lu = tantQue([](QChar c) { return continueMot(c) || c == u'.'; });
        bool juste = false;
        lu.toDouble(&juste);
        if (!juste)
            refuse(u"Un nombre est mal formé"_qs, m_sql);
        return lu;
    }

    QString signe()
    {
        static constexpr QStringView doubles[] = {u"<>", u"<=", u">="};
        for (const QStringView deux : doubles) {
            if (m_sql.mid(m_place, 2) == deux) {
                m_place += 2;
                return deux.toString();
            }
        }
        const QChar c = m_sql[m_place++];
        if (!QStringView(u"(),;=<>*+-").contains(c))
            refuse(u"Un caractère inattendu se trouve dans l'instruction"_qs, m_sql);
        return c;
    }

    QStringView m_sql;
    qsizetype m_place = 0;
};

/// Rewrites the tokens of one statement.
class Traducteur
{
public:
    Traducteur(Jetons jetons, const Schema &schema, QStringView sql)
        : m_jetons(std::move(jetons))
        , m_schema(schema)
        , m_sql(sql)
    {
        controleFin();
    }

    InstructionTraduite traduit()
    {
        InstructionTraduite resultat;
        const Table *table = tableUnique();
        for (m_place = 0; m_place < m_jetons.size(); ++m_place)
            ecrit();
        if (table != nullptr) {
            resultat.tableUnique = table->nom;
            completeOrdre(*table);
        } else if (est(0, u"select") && est(1, u"distinct") && !contient(u"order")) {
            completeDistinct();
        }
        resultat.sql = m_sortie.join(u' ');
        return resultat;
    }

private:
    bool est(std::size_t i, QStringView mot) const { return i < m_jetons.size() && m_jetons[i].estMot(mot); }
    bool signe(std::size_t i, QStringView texte) const { return i < m_jetons.size() && m_jetons[i].estSigne(texte); }
    bool contient(QStringView mot) const
    {
        return std::any_of(m_jetons.begin(), m_jetons.end(), [mot](const Jeton &j) { return j.estMot(mot); });
    }

    void controleFin()
    {
        for (std::size_t i = 0; i < m_jetons.size(); ++i) {
            if (!m_jetons[i].estSigne(u";"))
                continue;
            if (i + 1 != m_jetons.size())
                refuse(u"Du texte suit la fin de l'instruction"_qs, m_sql);
            m_jetons.pop_back();
        }
        if (m_jetons.empty())
            refuse(u"L'instruction est vide"_qs, m_sql);
    }

    /// Table of a plain `select * from table [where ...] [order by ...]`, null for any other statement.
    const Table *tableUnique() const
    {
        if (!est(0, u"select") || !signe(1, u"*") || !est(2, u"from") || m_jetons.size() < 4)
            return nullptr;
        const bool seule = m_jetons.size() == 4 || est(4, u"where") || est(4, u"order");
        return seule ? m_schema.table(m_jetons[3].texte) : nullptr;
    }

    void ecrit()
    {
        const Jeton &jeton = m_jetons[m_place];
        switch (jeton.genre) {
        case Jeton::Texte:
            m_sortie += u'\'' + QString(jeton.texte).replace(u'\'', u"''"_qs) + u'\'';
            break;
        case Jeton::Nombre:
            m_sortie += jeton.texte;
            break;
        case Jeton::Nom:
            m_sortie += nomEntreCrochets(jeton.texte);
            break;
        case Jeton::Signe:
            ecritSigne(jeton);
            break;
        case Jeton::Mot:
            ecritMot(jeton);
            break;
        }
    }

    void ecritSigne(const Jeton &jeton)
    {
        const bool etoileDeSelection = jeton.estSigne(u"*") && m_place == 1 && est(0, u"select") && tableUnique();
        if (etoileDeSelection)
            m_sortie += u"rowid, *"_qs;
        else if (jeton.estSigne(u"+") && joinDesTextes())
            m_sortie += u"||"_qs;
        else
            m_sortie += jeton.texte;
    }

    void ecritMot(const Jeton &jeton)
    {
        const bool suiviDeParenthese = signe(m_place + 1, u"(");
        if (jeton.estMot(u"isnull") && suiviDeParenthese)
            ecritIsNull();
        else if (jeton.estMot(u"left") && suiviDeParenthese)
            m_sortie += u"vt_left"_qs;
        else if (jeton.estMot(u"true"))
            m_sortie += u"-1"_qs;
        else if (jeton.estMot(u"false"))
            m_sortie += u"0"_qs;
        else if (jeton.estMot(u"not") && suitUnOuiNon())
            m_sortie += u"~"_qs;
        else if (jeton.estMot(u"delete") && signe(m_place + 1, u"*")) {
            m_sortie += jeton.texte;
            ++m_place;
        } else if (jeton.estMot(u"insert") && contient(u"select"))
            m_sortie += u"insert or ignore"_qs;
        else if (!suiviDeParenthese || estNomDeTable())
            m_sortie += nom(jeton.texte);
        else
            m_sortie += jeton.texte;
    }

    /// `isnull(x)` becomes `(x is null)`.
    void ecritIsNull()
    {
        m_sortie += u"("_qs;
        m_place += 2;
        for (int profondeur = 1; m_place < m_jetons.size(); ++m_place) {
            profondeur += signe(m_place, u"(") ? 1 : signe(m_place, u")") ? -1 : 0;
            if (profondeur == 0) {
                m_sortie += u"is null )"_qs;
                return;
            }
            ecrit();
        }
        refuse(u"Une parenthèse n'est pas refermée"_qs, m_sql);
    }

    bool estNomDeTable() const { return m_place > 0 && est(m_place - 1, u"into"); }

    bool suitUnOuiNon() const
    {
        const std::size_t suivant = m_place + 1;
        if (suivant >= m_jetons.size() || signe(suivant + 1, u"(") || signe(suivant + 1, u"="))
            return false;
        return m_schema.typeDuNom(m_jetons[suivant].texte) == TypeChamp::Booleen;
    }

    /// Whether the + at the current place stands beside a text: a quoted text, a text field, trim() or left().
    bool joinDesTextes() const
    {
        return m_place > 0 && m_place + 1 < m_jetons.size() && (estTexteAvant() || estTexteApres());
    }

    bool estTexteApres() const
    {
        const Jeton &apres = m_jetons[m_place + 1];
        return estFonctionTexte(apres) || estOperandeTexte(apres);
    }

    bool estTexteAvant() const
    {
        std::size_t i = m_place - 1;
        if (!m_jetons[i].estSigne(u")"))
            return estOperandeTexte(m_jetons[i]);
        for (int profondeur = 0; i > 0; --i) {
            profondeur += signe(i, u")") ? 1 : signe(i, u"(") ? -1 : 0;
            if (profondeur == 0)
                return estFonctionTexte(m_jetons[i - 1]);
        }
        return false;
    }

    bool estOperandeTexte(const Jeton &jeton) const
    {
        const bool estNom = jeton.genre == Jeton::Mot || jeton.genre == Jeton::Nom;
        return jeton.genre == Jeton::Texte || (estNom && m_schema.typeDuNom(jeton.texte) == TypeChamp::Texte);
    }

    static bool estFonctionTexte(const Jeton &jeton) { return jeton.estMot(u"trim") || jeton.estMot(u"left"); }

    QString nom(const QString &texte) const
    {
        const QString connu = m_schema.nomConnu(texte);
        return connu.isEmpty() ? texte : u'[' + connu + u']';
    }

    QString nomEntreCrochets(const QString &texte) const
    {
        const QString connu = m_schema.nomConnu(texte);
        return u'[' + (connu.isEmpty() ? texte : connu) + u']';
    }

    void completeOrdre(const Table &table)
    {
        QStringList cles;
        if (const IndexTable *cle = table.indexNomme(u"primarykey")) {
            for (const CleIndex &champ : cle->cles)
                cles += u'[' + table.champs[std::size_t(champ.champ)].nom + u']';
        } else {
            cles += u"rowid"_qs;
        }
        m_sortie += (contient(u"order") ? u", "_qs : u"order by "_qs) + cles.join(u", ");
    }

    void completeDistinct()
    {
        QStringList colonnes{u"1"_qs};
        int profondeur = 0;
        for (std::size_t i = 2; i < m_jetons.size() && !est(i, u"from"); ++i) {
            profondeur += signe(i, u"(") ? 1 : signe(i, u")") ? -1 : 0;
            if (profondeur == 0 && signe(i, u","))
                colonnes += QString::number(colonnes.size() + 1);
        }
        m_sortie += u"order by "_qs + colonnes.join(u", ");
    }

    Jetons m_jetons;
    const Schema &m_schema;
    QStringView m_sql;
    std::size_t m_place = 0;
    QStringList m_sortie;
};

} // namespace

InstructionTraduite Traduit(QStringView sql, const Schema &schema)
{
    return Traducteur(Decoupe(sql).jetons(), schema, sql).traduit();
}

} // namespace store
