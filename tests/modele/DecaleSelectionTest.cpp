// SPDX-License-Identifier: MPL-2.0
#include "modele/DecaleSelection.h"

#include <gtest/gtest.h>

using compagnon::DecaleSelection;
using compagnon::Intervalle;

namespace {

struct Cas {
    Intervalle selection;
    Intervalle editee;
    std::size_t longueur;
    Intervalle attendue;
};

void Verifie(std::initializer_list<Cas> table) {
    for (Cas const& cas : table) {
        Intervalle const obtenue = DecaleSelection(cas.selection, cas.editee, cas.longueur);
        EXPECT_EQ(obtenue, cas.attendue)
            << "selection " << cas.selection.debut << ".." << cas.selection.fin << ", edit "
            << cas.editee.debut << ".." << cas.editee.fin << " by " << cas.longueur << ": "
            << obtenue.debut << ".." << obtenue.fin;
    }
}

} // namespace

TEST(SelectionShift, ASelectionClearOfTheEditKeepsItsLetters) {
    Verifie({{{5, 9}, {0, 2}, 5, {8, 12}},
             {{5, 9}, {0, 5}, 1, {1, 5}},
             {{5, 9}, {9, 12}, 1, {5, 9}},
             {{5, 9}, {20, 22}, 0, {5, 9}}});
}

TEST(SelectionShift, TextPutInAtItsBordersStaysOutside) {
    Verifie({{{5, 9}, {5, 5}, 3, {8, 12}}, {{5, 9}, {9, 9}, 3, {5, 9}}});
}

TEST(SelectionShift, ASelectionThatOverlapsGrowsOverTheReplacement) {
    Verifie({{{5, 9}, {5, 9}, 2, {5, 7}},
             {{5, 9}, {3, 7}, 1, {3, 6}},
             {{5, 9}, {7, 12}, 1, {5, 8}},
             {{5, 9}, {3, 12}, 4, {3, 7}},
             {{5, 9}, {6, 7}, 4, {5, 12}},
             {{5, 9}, {7, 7}, 2, {5, 11}},
             {{5, 9}, {5, 6}, 0, {5, 8}}});
}

TEST(SelectionShift, ACaretEndsBehindWhatWasPutInThere) {
    Verifie({{{5, 5}, {5, 5}, 3, {8, 8}},
             {{5, 5}, {4, 7}, 1, {5, 5}},
             {{6, 6}, {4, 9}, 2, {6, 6}},
             {{5, 5}, {5, 7}, 4, {5, 5}},
             {{5, 5}, {3, 5}, 0, {3, 3}},
             {{5, 5}, {9, 9}, 3, {5, 5}},
             {{0, 0}, {0, 0}, 1, {1, 1}}});
}
