// SPDX-License-Identifier: MPL-2.0
#include "Confusions.h"

#include "commun/MessagesHote.h"
#include "moteurs/FaisParagraphe.h"

#include <QRegularExpression>

namespace hote {

namespace {

constexpr double kSurete = 0.75;

/// What is found, where `f` names the wrong part, and what should stand in its place, parted by
/// "|". "^" in front of a pattern stands for a sentence's beginning.
struct Confusion {
    char const* langue;
    char const* regle;
    char const* motif;
    char const* corrections;
};

constexpr Confusion kConfusions[] = {
    {"fr", "ou",
     R"(\b(?:sais|sait|savez|savons|savent) (?:pas|plus) (?<f>ou)(?= (?:j['’]|je |tu |il |elle |on |nous |vous |ils |elles |est |sont |se |ça )))",
     "où"},
    {"fr", "où",
     R"(\b(?:du|de la|des|un|une) \w+ (?<f>où)(?= (?:du|de la|des|un|une) \w+\s?(?:[?.!,]|$)))",
     "ou"},
    {"fr", "sommes", R"(\bnous (?<f>somme)\b)", "sommes"},
    {"fr", "à",
     R"((?<!\bil |\belle |\bon |\by |\bqui |\bça |\bcela |['’])\b(?<f>a)(?= (?:midi|minuit|partir d|cause d|côté d|travers |propos d|nouveau\b|pied\b|bientôt\b|demain\b|condition ))",
     "à"},
    {"fr", "plus",
     R"(\bn['’](?:y a|ai|avons|avez|ont) (?<f>plu)(?= (?:de |d['’]|rien|personne|aucun)))", "plus"},
    {"fr", "quelle",
     R"(\b(?<f>quel)(?= (?:heure|idée|surprise|chance|couleur|ville|année|page|personne|langue|raison|taille|date|adresse|femme|fille|chose|question|belle|bonne|est la|était la)\b))",
     "quelle"},
    {"fr", "sa",
     R"(\b(?:dans|avec|pour|sur|chez|sans|par|perdu|oublié|pris|vendu|acheté|cassé|réparé|retrouvé|laissé) (?<f>ça)(?= (?:montre|mère|femme|maison|voiture|sœur|fille|tête|main|vie|famille|clé|chambre|robe|porte|place|valise)\b))",
     "sa"},
    {"fr", "c’est",
     R"(^(?<f>s['’]est)(?= (?:une|un|la|le|les|des|mon|ma|ton|notre|votre|très|trop|bien|vrai|dommage|pourquoi|parce|moi|pas)\b))",
     "C’est"},
    {"fr", "ont",
     R"((?<=\w )(?<f>on)(?= (?:\p{L}{2,}é|pris|mis|reçu|eu|vu|fini|voulu|pu|dû|su)\b(?!-)))",
     "ont|a"},
    {"fr", "est",
     R"(^(?:il|elle|on|tout|ça) (?<f>et)(?= (?:\p{L}{3,}ée?|parti|partie|venu|venue|trop|très|toujours|déjà|malade|content|contente|en retard|en colère|en train|en vacances|en panne)\b))",
     "est"},
    {"fr", "est-il",
     R"((?<=\p{L} )(?<f>est (?:il|ils|elle|elles))(?= (?!aussi|même|non|seul)\p{L}))",
     "et il|est-il"},
    {"fr", "toute", R"(\b(?<f>tous)(?= (?:seule|petite|neuve)\b))", "toute"},
    {"fr", "tout", R"(\b(?<f>tous)(?= (?:seul|neuf|simplement|de suite|à fait|court|droit)\b))",
     "tout"},
    {"fr", "pluriel",
     R"(\b(?:beaucoup|peu|trop|plein|tant) de (?<f>problème|personne|question|enfant|livre|voiture|élève|client|document|ami|visiteur|erreur|faute|mot)\b)",
     "+s"},
    {"fr", "être",
     R"(\b(?<f>ont)(?= (?:parti|partie|partis|parties|allée?s?|venue?s?|arrivée?s?|restée?s?|devenue?s?|décédée?s?)\b(?! (?:pris|liée?s?)\b)))",
     "sont"},
    {"fr", "être",
     R"(\b(?:il|elle|on|qui) (?<f>a)(?= (?:parti|partie|allée?|venue?|arrivée?|restée?|devenue?|décédée?)\b(?! (?:pris|liée?)\b)))",
     "est"},
    {"fr", "être",
     R"(\bj['’](?<f>ai)(?= (?:parti|partie|allée?|venue?|arrivée?|restée?|devenue?)\b(?! pris\b)))",
     "suis"},

    {"en", "its",
     R"(\b(?<f>its)(?= (?:going to|been|not|a|an|the|too late|too early|raining|snowing|my|your|our|his|impossible)\b))",
     "it's"},
    {"en", "your",
     R"(\b(?<f>your)(?= (?:going to|not|a|an|the|too|so)\b|\s(?:right about|welcome[.!,]|wrong about)))",
     "you're"},
    {"en", "too",
     R"(\b(?:is|was|are|were|am|be|it's|far|way) (?<f>to)(?= (?:late|early|young|old|much|many|big|small|expensive|difficult|tired|busy|far|hot|high|weak|loud|soon)\b(?! to the| the)))",
     "too"},
    {"en", "too",
     R"(\b(?:ate|eat|drank|drink|talk|talks|works?|spent|spend|cost|costs|paid|pay) (?<f>to)(?= (?:much|many)\b))",
     "too"},
    {"en", "agreement",
     R"(^(?:each|one|neither|either) of (?:the|them|us|these|those|my|our|his|her)(?: \w+)? (?<f>have)\b)",
     "has"},
    {"en", "agreement",
     R"(^(?:each|one|neither|either) of (?:the|them|us|these|those|my|our|his|her)(?: \w+)? (?<f>are)\b)",
     "is"},
    {"en", "agreement",
     R"(^(?:each|one|neither|either) of (?:the|them|us|these|those|my|our|his|her)(?: \w+)? (?<f>were)\b)",
     "was"},
    {"en", "agreement",
     R"(\b(?:everyone|everybody|nobody|no one|everything|nothing|something|someone|somebody) (?<f>are)\b)",
     "is"},
    {"en", "agreement",
     R"(^(?:everyone|everybody|nobody|no one|everything|someone|somebody) (?<f>have)\b)", "has"},
    {"en", "agreement",
     R"(^(?:the|this|that|my|your|his|her|our) (?!(?:children|people|police|men|women|staff|team|media|data|cattle|rest|majority|others|two|few|young|old|rich|poor)\b)\w+[^s\W] (?<f>don['’]t)\b)",
     "doesn't"},
    {"en", "agreement",
     R"(\b(?:the|this) (?:weather|list|price|number|car|house|book|letter|problem|answer|result|news|information|company|government)(?: of \w+)? (?<f>are)\b)",
     "is"},
    {"en", "agreement", R"(^(?:my|his|her|our) \w+ and I (?<f>was)\b)", "were"},
    {"en", "agreement", R"(\b(?:we|they|you) (?<f>was)\b)", "were"},
    {"en", "modal", R"(\b(?:must|should|could) (?<f>to )(?=\p{Ll}+\b))", ""},
    {"en", "modal",
     R"(\b(?:can|could|should|would|must) (?<f>goes|does|has|says|makes|takes|comes|gets|sees|knows|thinks|wants|needs|sings|runs|gives|tells|seems|feels|lives|looks)\b)",
     "-s"},
    {"en", "agree", R"(\b(?:I|we|they|you) (?<f>am agree|are agree)\b)", "agree"},
    {"en", "well",
     R"(\b(?:speaks?|spoke|sings?|sang|plays?|played|drives?|cooks?|writes?|works?|worked) (?:\w+ )?(?:very |so |really )?(?<f>good)(?=[.!?,;]|$))",
     "well"},
    {"en", "quickly",
     R"(\b(?:drives?|drove|runs?|ran|speaks?|talks?|walks?|eats?|works?) (?:too|very|so) (?<f>quick)(?=[.!?,;]|$))",
     "quickly"},
    {"en", "me", R"(\bbetween you and (?<f>I)\b)", "me"},
    {"en", "and I", R"(^(?<f>me and (?:him|her))(?= \p{Ll}+))", "He and I|She and I"},
    {"en", "used to", R"(^(?:I|we|they|he|she|it) (?<f>use)(?= to \p{Ll}))", "used"},
    {"en", "let's",
     R"(^(?<f>lets)(?= (?:go|meet|see|take|have|get|try|do|make|not|be|start|talk|say|eat|wait|hope)\b))",
     "Let's"},
    {"en", "know",
     R"(\b(?:don['’]t|didn['’]t|doesn['’]t|do not|did not) (?<f>no)(?= (?:the|what|how|why|who|if|whether|him|her|anything|that|it|where)\b))",
     "know"},
    {"en", "can't", R"(\b(?:I|you|we|they|he|she|it) (?<f>cant)\b)", "can't"},
    {"en", "won't", R"(\b(?:I|you|we|they|he|she|it) (?<f>wont)\b)", "won't"},
    {"en", "then", R"(,\s(?<f>than)(?= (?:I|we|he|she|they|you)\b))", "then"},
    {"en", "lose",
     R"(\b(?:to|not|will|would|can|could|don['’]t|might|may|please) (?<f>loose)(?= (?:your|my|his|her|our|their|the|a|no|time|weight|money|any|it|control|interest|hope)\b))",
     "lose"},
    {"en", "accept",
     R"(\b(?:to|will|would|can|cannot|please|gladly) (?<f>except)(?= (?:your|the|my|this|our|his|her|their|it|an|a)\b))",
     "accept"},
    {"en", "principal",
     R"(\b(?<f>principle)(?= (?:of (?:the|our|my|your) (?:school|college)|reason|cause|aim|source)\b))",
     "principal"},
    {"en", "dessert",
     R"(\b(?:for|had|ate|eat|ordered|order|have) (?<f>desert)(?=[.,!?]| (?:after|before|and|at|with)\b))",
     "dessert"},
    {"en", "from",
     R"(\b(?:leaves?|comes?|came|back|away|far|different|returned|arrived|departs?) (?<f>form)(?= (?:the|a|my|his|her|our|your|their|gate|work|school|here|there|home)\b))",
     "from"},
    {"en", "there",
     R"(\b(?:lives?|lived|went|go|goes|going|been|stay|stayed|over) (?<f>their)(?= (?:with|and|for|yesterday|today|tomorrow|since|to|in|on|at)\b|[.,!?]))",
     "there"},
    {"en", "them",
     R"(\b(?:told|tell|asked|ask|gave|helped|let|saw|with|for) (?<f>they)(?= to\b|[.,!?]|$))",
     "them"},
    {"en", "many",
     R"(\b(?<f>much)(?= (?:people|friends|things|books|cars|problems|questions|times|children|students|ideas|words|days|hours|minutes|dollars|mistakes)\b))",
     "many"},
    {"en", "fewer",
     R"(\b(?<f>less)(?= (?:people|cars|books|students|children|friends|mistakes|errors)\b))",
     "fewer"},
};

QRegularExpression Fais(Confusion const& confusion) {
    QString motif = QString::fromUtf8(confusion.motif);
    if (motif.startsWith(QLatin1Char('^'))) {
        motif = QStringLiteral("(?:^|(?<=[.!?…] )|(?<=\n))") + motif.mid(1);
    }
    return QRegularExpression(motif, QRegularExpression::UseUnicodePropertiesOption |
                                         QRegularExpression::CaseInsensitiveOption);
}

std::vector<QRegularExpression> const& DonneExpressions() {
    static auto const expressions = [] {
        std::vector<QRegularExpression> faites;
        for (Confusion const& confusion : kConfusions) {
            faites.push_back(Fais(confusion));
        }
        return faites;
    }();
    return expressions;
}

/// What should stand there, with the capital of what does. "+s" and "-s" add and take one.
QStringList DonneCorrections(Confusion const& confusion, QString const& mot) {
    QString const corrections = QString::fromUtf8(confusion.corrections);
    if (corrections == QLatin1String("+s")) {
        return {mot + QLatin1Char('s')};
    }
    if (corrections == QLatin1String("-s")) {
        bool const es = mot.endsWith(QLatin1String("oes"));
        return {mot == QLatin1String("has") ? QStringLiteral("have")
                                            : mot.left(mot.size() - (es ? 2 : 1))};
    }
    QStringList liste = corrections.split(QLatin1Char('|'));
    for (QString& correction : liste) {
        if (mot.at(0).isUpper() && !correction.isEmpty()) {
            correction[0] = correction.at(0).toUpper();
        }
        if (mot.contains(QLatin1Char('\''))) {
            correction.replace(QChar(0x2019), QLatin1Char('\''));
        }
    }
    return liste;
}

} // namespace

void ChercheConfusions(ParagrapheAExaminer const& paragraphe, std::vector<Remarque>& remarques) {
    auto const& expressions = DonneExpressions();
    for (std::size_t rang = 0; rang < expressions.size(); ++rang) {
        Confusion const& confusion = kConfusions[rang];
        auto trouves = expressions[rang].globalMatch(paragraphe.texte);
        while (trouves.hasNext()) {
            auto const trouve = trouves.next();
            Remarque remarque{};
            remarque.debut = trouve.capturedStart(QStringLiteral("f"));
            remarque.fin = trouve.capturedEnd(QStringLiteral("f"));
            auto const juge = [&](QString const& langue) {
                return DonneLangueSansPays(langue) == QLatin1String(confusion.langue);
            };
            if (!EstDansLangues(paragraphe, remarque.debut, remarque.fin, juge)) {
                continue;
            }
            QString const mot = trouve.captured(QStringLiteral("f"));
            remarque.genre = GenreDeRemarque::Confusion;
            remarque.regle = QStringLiteral("confusion-") + QString::fromUtf8(confusion.regle);
            remarque.suggestions = DonneCorrections(confusion, mot);
            remarque.explication = QString::fromStdString(
                Tr("« {1} » n’est sans doute pas le bon mot ici.", mot.trimmed()));
            remarque.surete = kSurete;
            remarques.push_back(remarque);
        }
    }
}

} // namespace hote
