// What the effects say of their own, in the page's language (<html lang>); English where that isn't known.
//
//     brndfn.say("Next month")           the word or phrase
//     brndfn.ownLanguage()               the language that it is in
//     brndfn.format({ month: "long" })   an Intl.DateTimeFormat with these options
//
// This file stays plain ASCII: a script is read in the encoding of its page.
(() => {
    "use strict";

    const brndfn = window.brndfn;
    if (brndfn.say)
        return;

    const WORDS = {
        "Calendar": {
            de: "Kalender", es: "Calendario", fr: "Calendrier", it: "Calendario", nl: "Kalender",
            pt: "Calend\u00e1rio", ja: "\u30ab\u30ec\u30f3\u30c0\u30fc", zh: "\u65e5\u5386",
        },
        "Links": {
            de: "Links", es: "Enlaces", fr: "Liens", it: "Link", nl: "Links",
            pt: "Links", ja: "\u30ea\u30f3\u30af", zh: "\u94fe\u63a5",
        },
        "Month": {
            de: "Monat", es: "Mes", fr: "Mois", it: "Mese", nl: "Maand",
            pt: "M\u00eas", ja: "\u6708", zh: "\u6708",
        },
        "Next month": {
            de: "N\u00e4chster Monat", es: "Mes siguiente", fr: "Mois suivant", it: "Mese successivo",
            nl: "Volgende maand", pt: "M\u00eas seguinte", ja: "\u7fcc\u6708", zh: "\u4e0b\u4e2a\u6708",
        },
        "Next year": {
            de: "N\u00e4chstes Jahr", es: "A\u00f1o siguiente", fr: "Ann\u00e9e suivante", it: "Anno successivo",
            nl: "Volgend jaar", pt: "Ano seguinte", ja: "\u7fcc\u5e74", zh: "\u4e0b\u4e00\u5e74",
        },
        "Previous month": {
            de: "Voriger Monat", es: "Mes anterior", fr: "Mois pr\u00e9c\u00e9dent", it: "Mese precedente",
            nl: "Vorige maand", pt: "M\u00eas anterior", ja: "\u524d\u6708", zh: "\u4e0a\u4e2a\u6708",
        },
        "Previous year": {
            de: "Voriges Jahr", es: "A\u00f1o anterior", fr: "Ann\u00e9e pr\u00e9c\u00e9dente", it: "Anno precedente",
            nl: "Vorig jaar", pt: "Ano anterior", ja: "\u524d\u5e74", zh: "\u4e0a\u4e00\u5e74",
        },
        "Stop the movement": {
            de: "Bewegung anhalten", es: "Detener el movimiento", fr: "Arr\u00eater le mouvement",
            it: "Fermare il movimento", nl: "Beweging stoppen", pt: "Parar o movimento",
            ja: "\u52d5\u304d\u3092\u6b62\u3081\u308b", zh: "\u505c\u6b62\u6eda\u52a8",
        },
        "Time": {
            de: "Uhrzeit", es: "Hora", fr: "Heure", it: "Ora", nl: "Tijd",
            pt: "Hora", ja: "\u6642\u523b", zh: "\u65f6\u95f4",
        },
        "Today": {
            de: "Heute", es: "Hoy", fr: "Aujourd\u2019hui", it: "Oggi", nl: "Vandaag",
            pt: "Hoje", ja: "\u4eca\u65e5", zh: "\u4eca\u5929",
        },
        "Year": {
            de: "Jahr", es: "A\u00f1o", fr: "Ann\u00e9e", it: "Anno", nl: "Jaar",
            pt: "Ano", ja: "\u5e74", zh: "\u5e74",
        },
    };

    brndfn.ownLanguage = () => {
        const [language] = document.documentElement.lang.toLowerCase().split("-");
        return Object.hasOwn(WORDS.Links, language) ? language : "en";
    };

    brndfn.say = (english) => WORDS[english][brndfn.ownLanguage()] ?? english;

    brndfn.format = (options) => {
        try {
            return new Intl.DateTimeFormat(document.documentElement.lang || "en", options);
        } catch {
            return new Intl.DateTimeFormat("en", options); // the page names a language that there is not
        }
    };
})();
