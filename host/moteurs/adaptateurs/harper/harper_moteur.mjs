// SPDX-License-Identifier: MPL-2.0
// Harper as an engine: JSON Lines on standard input and output (docs/moteurs.md).
// Argument: the folder in which npm installed harper.js.
import { readFileSync } from "node:fs";
import { createInterface } from "node:readline";
import { pathToFileURL } from "node:url";

const dossier = `${process.argv[2]}/node_modules/harper.js`;

const genres = {
    Agreement: "accord", Grammar: "accord", Miscellaneous: "confusion", BoundaryError: "confusion",
    Eggcorn: "confusion", Malapropism: "confusion", Typo: "confusion", WordChoice: "confusion",
    Usage: "confusion", Nonstandard: "confusion", Capitalization: "typographie",
    Formatting: "typographie", Punctuation: "typographie", Repetition: "repetition",
    Redundancy: "style", Readability: "style", Enhancement: "style", Style: "style",
    Regionalism: "style",
};
// Spelling is the dictionaries' work.
const tus = new Set(["Spelling", "Regionalism", "Readability", "Enhancement"]);

function ecris(objet) {
    process.stdout.write(JSON.stringify(objet) + "\n");
}

async function charge() {
    const module = await import(pathToFileURL(`${dossier}/dist/index.js`).href);
    const { binaryInlined } = await import(pathToFileURL(`${dossier}/dist/binaryInlined.js`).href);
    const verificateur = new module.LocalLinter({
        binary: binaryInlined, dialect: module.Dialect.American,
    });
    await verificateur.setup();
    const reglage = await verificateur.getDefaultLintConfig();
    // Style, and rules seen to be wrong about plain sentences.
    for (const regle of ["SpellCheck", "LongSentences", "Dashes", "SentenceCapitalization", "CallThem"]) {
        if (regle in reglage) {
            reglage[regle] = false;
        }
    }
    await verificateur.setLintConfig(reglage);
    return [verificateur, module];
}

function donneDialecte(module, langues) {
    const dialectes = {
        "en-GB": "British", "en-AU": "Australian", "en-CA": "Canadian", "en-IN": "Indian",
    };
    const anglaise = langues.find((etendue) => etendue.langue.split("-")[0] === "en");
    return module.Dialect[dialectes[anglaise?.langue] ?? "American"];
}

function faisRemarque(regle, faute, texte) {
    // UTF-16 units, as ours.
    const { start: debut, end: fin } = faute.span();
    const genre = genres[faute.lint_kind()] ?? "style";
    const suggestions = faute.suggestions().map((suggestion) => {
        // Kinds: replace, remove, insert behind.
        const nouveau = suggestion.get_replacement_text();
        return suggestion.kind() === 2 ? texte.slice(debut, fin) + nouveau : nouveau;
    });
    return {
        debut, fin, genre, regle, explication: faute.message(), suggestions,
        surete: genre === "style" ? 0.4 : suggestions.length === 1 ? 0.8 : 0.6,
    };
}

async function examine(verificateur, module, demande) {
    const dialecte = donneDialecte(module, demande.langues);
    if (dialecte !== await verificateur.getDialect()) {
        await verificateur.setDialect(dialecte);
    }
    const fautes = await verificateur.organizedLints(demande.texte, { language: "plaintext" });
    return Object.entries(fautes).flatMap(([regle, trouvees]) => trouvees
        .filter((faute) => !tus.has(faute.lint_kind()))
        .map((faute) => faisRemarque(regle, faute, demande.texte)));
}

async function main() {
    let version;
    let verificateur;
    let module;
    try {
        version = JSON.parse(readFileSync(`${dossier}/package.json`, "utf8")).version;
        [verificateur, module] = await charge();
    } catch (faute) {
        ecris({ contrat: 1, moteur: "harper", absent: String(faute.message ?? faute) });
        return;
    }
    ecris({ contrat: 1, moteur: "harper", version });
    for await (const ligne of createInterface({ input: process.stdin })) {
        const demande = JSON.parse(ligne);
        try {
            ecris({ id: demande.id, remarques: await examine(verificateur, module, demande) });
        } catch (faute) {
            ecris({ id: demande.id, erreur: String(faute.message ?? faute) });
        }
    }
}

await main();
process.exit(0);
