// SPDX-License-Identifier: MPL-2.0
// Documents that nobody writes but to hold the host: what they cost is bounded.
#include "DecoupageZones.h"
#include "DocumentsJson.h"
#include "LectureJson.h"
#include "ZoneJson.h"

#include <gtest/gtest.h>

#include <chrono>
#include <fstream>
#include <string>

namespace {

using namespace std::string_literals;

std::string Repete(std::string const& motif, std::size_t fois) {
    std::string texte;
    texte.reserve(motif.size() * fois);
    for (std::size_t i = 0; i < fois; ++i) {
        texte += motif;
    }
    return texte;
}

/// `nombre` times the element, with commas between.
std::string Suite(std::string const& element, std::size_t nombre) {
    return Repete(element + ',', nombre - 1) + element;
}

/// Fails where what happened since took longer than any of these documents may.
class Montre {
  public:
    Montre() = default;
    ~Montre() { EXPECT_LT(std::chrono::steady_clock::now() - depart_, std::chrono::seconds(100)); }
    Montre(Montre const&) = delete;
    Montre& operator=(Montre const&) = delete;

  private:
    std::chrono::steady_clock::time_point depart_ = std::chrono::steady_clock::now();
};

/// Memory of this process, in bytes.
std::size_t Memoire() {
    constexpr std::size_t kPage = 4096;
    std::ifstream etat("/proc/self/statm");
    std::size_t taille = 0;
    std::size_t presente = 0;
    etat >> taille >> presente;
    return presente * kPage;
}

std::size_t Nombre(std::string const& document) {
    std::size_t nombre = 0;
    LisListeDeZones(document, [&](ZoneRecue&& /*zone*/) { ++nombre; });
    return nombre;
}

TEST(OversizedDocuments, CommentsCostNoMoreThanTheirLength) {
    Montre const montre;
    for (auto const* commentaire : {"/* x */", "/* x */\n", "// x\n"}) {
        auto const commentaires = Repete(commentaire, 300000);
        EXPECT_EQ(1U, Nombre("{\"Zones\":[" + commentaires + "{}]}"));
        EXPECT_EQ(1U, Nombre("{\"Zones\":[{}" + commentaires + "]}"));
        std::string autour = commentaires;
        autour.append("{\"Zones\":[{}]}").append(commentaires);
        EXPECT_EQ(1U, Nombre(autour));
        EXPECT_EQ(1U, Nombre("{\"Zones\":[{\"a\":1" + commentaires + "}]}"));
    }
}

TEST(OversizedDocuments, EscapesCostNoMoreThanTheirLength) {
    Montre const montre;
    for (auto const* echappe : {"\\/", "\\\"", "\\u0041"}) {
        EXPECT_EQ(1U, Nombre(Liste(R"({"a":")" + Repete(echappe, 1000000) + "\"}"))) << echappe;
    }
    EXPECT_EQ(0U, Nombre(Liste(R"({"a":")" + Repete("\\", 999999)))) << "never closed";
}

TEST(OversizedDocuments, ZonesAreHandedOutBeforeThereIsRoomForAllOfThem) {
    auto const document = Liste(Suite("{}", kZonesMax));
    struct Assez {};
    auto const avant = Memoire();
    std::size_t pendant = 0;
    EXPECT_THROW(LisListeDeZones(document,
                                 [&](ZoneRecue&& /*zone*/) {
                                     pendant = Memoire();
                                     throw Assez{};
                                 }),
                 Assez);
    EXPECT_LT(pendant, avant + (std::size_t{16} << 20)) << "for two million zones";
}

TEST(OversizedDocuments, AsManyZonesAsAnyDocumentHasAndNoMore) {
    Montre const montre;
    EXPECT_EQ(kZonesMax, Nombre(Liste(Suite("{}", kZonesMax))));
    EXPECT_EQ(0U, Nombre(Liste(Suite("{}", kZonesMax + 1))));
    EXPECT_EQ(1U, Nombre(Liste(Suite("null", kZonesMax + 1) + ",{}"))) << "these are no zones";
    EXPECT_EQ(0U, Nombre(Liste(Suite("{}", 40000000)))) << "as many as a reply can name";
}

TEST(OversizedDocuments, MoreValuesThanAZoneCanHaveAreRefusedBeforeATreeIsBuilt) {
    Montre const montre;
    constexpr std::size_t kTrop = lectureJson::kValeursMax + 1;
    auto const avant = Memoire();
    for (auto const* membre : {R"("InfosStyle":[)", R"("\u0061":1.5,"InfosStyle":[)"}) {
        EXPECT_EQ(0U, Nombre(Liste("{" + (membre + Suite("{}", kTrop)) + "]}"))) << membre;
    }
    for (auto const* devant : {"/**/", "[", "{\"a\":[[[[[[[[[[["}) { // parsed as a whole
        EXPECT_EQ(0U, Nombre(devant + Liste(Suite("{}", kTrop)))) << devant;
    }
    UniChaine nom = U(u"nom");
    EXPECT_TRUE(
        TexteDe(JsonVersChaineAttribuee(
                    UniChaine::DepuisUtf8("{\"InfosStyle\":[" + Suite("0", kTrop) + "]}"), nom))
            .EstVide());
    EXPECT_LT(Memoire(), avant + (std::size_t{256} << 20));
}

TEST(OversizedDocuments, AZoneOfAHundredThousandRunsIsRead) {
    auto const zones =
        LisTout(Liste(Zone("n", "t",
                           "\"InfosStyle\":[" + Suite(R"({"Debut":1,"Fin":3,"Style":2})", 100000) +
                               ']')))
            .zones;
    ASSERT_EQ(1U, zones.size());
    EXPECT_EQ(100000U, zones[0].styles.size());
}

} // namespace
