// Calender: a greeting with a clock, and the month with today marked.
//
// The page's text sets five globals, each a whole HTML attribute (style='...'): brndfncalenstyletext for the
// greeting, brndfncalenstyletextbutton for the clock's box, brndfntitlestyle for the month's title,
// brndfncalenstylecalander for the calendar's border and its dates, brndfncalenstyletextborder for the border of a
// date's cell. Then it calls brndfncalengreeting(text) and brndfncalencalendar(background, currentDay), colours
// with a leading "#"; each draws at the place of the call.
(() => {
    "use strict";

    const CELL = "padding: 0.25em 0.5em;";

    // The declarations in such an attribute, as today's browsers take them.
    function declarations(attribute) {
        const [, text] = /style='(.*)'/s.exec(attribute) || ["", ""];
        return brndfn.css(text);
    }

    function element(name, style, ...children) {
        const made = document.createElement(name);
        made.style.cssText = style;
        made.append(...children);
        return made;
    }

    // Puts what was drawn where the running script stands; the parser goes on behind it.
    function place(drawn) {
        const script = document.currentScript;
        (script ? script.parentElement : document.body).append(drawn);
        const layout = drawn.parentElement.closest("table");
        if (layout)
            layout.setAttribute("role", "presentation");
    }

    // Dates and times are told in the page's language.
    function format(options) {
        try {
            return new Intl.DateTimeFormat(document.documentElement.lang || "en", options);
        } catch {
            return new Intl.DateTimeFormat("en", options); // the page names a language that there is not
        }
    }

    // Black or white, whichever can be read on the colour.
    function readableOn(colour) {
        const [red, green, blue] = (colour.match(/[0-9a-f]{2}/gi) || []).map((part) => parseInt(part, 16));
        const brightness = 0.299 * red + 0.587 * green + 0.114 * blue;
        return isNaN(brightness) ? "inherit" : brightness > 140 ? "black" : "white";
    }

    function clock() {
        const time = format({ timeStyle: brndfn.calm() ? "short" : "medium" });
        const box = element("span", `display: inline-flex; flex: none; align-items: center; justify-content: center;
            box-sizing: border-box; padding: 0 0.3em; border: 1px solid rgb(128 128 128 / 0.5); border-radius: 3px;
            overflow: hidden; white-space: nowrap; font-variant-numeric: tabular-nums;
            ${declarations(window.brndfncalenstyletextbutton)}; min-width: max-content`);
        box.setAttribute("role", "timer"); // a role that is not read out at each change
        box.setAttribute("aria-label", "Time");
        box.tabIndex = 0;
        const show = () => {
            const now = time.format(new Date());
            if (box.textContent !== now)
                box.textContent = now;
        };
        show();
        brndfn.pausable(box, brndfn.every(box, 1000, show));
        return box;
    }

    function titles() {
        const row = element("tr", "");
        for (let day = 1; day <= 7; day++) {
            const date = new Date(2023, 0, day); // that month began on a Sunday
            const title = element("th", `${CELL} box-sizing: border-box; width: 3.2em; border-bottom: 1px solid rgb(128 128 128 / 0.4);
                font-weight: inherit; text-align: inherit;`, format({ weekday: "short" }).format(date));
            title.scope = "col";
            title.abbr = format({ weekday: "long" }).format(date);
            row.append(title);
        }
        return element("thead", "", row);
    }

    // The weeks of the month that `today` lies in, from Sunday to Saturday, blank cells around the dates.
    function weeks(today, cellStyle, currentDay) {
        const body = element("tbody", "");
        const blanks = new Date(today.getFullYear(), today.getMonth(), 1).getDay();
        const days = new Date(today.getFullYear(), today.getMonth() + 1, 0).getDate();
        for (let first = 1 - blanks; first <= days; first += 7) {
            const row = body.insertRow();
            for (let day = first; day < first + 7; day++) {
                const cell = element("td", CELL + cellStyle, day >= 1 && day <= days ? String(day) : "");
                if (day === today.getDate())
                    markToday(cell, currentDay);
                row.append(cell);
            }
        }
        return body;
    }

    function markToday(cell, currentDay) {
        cell.setAttribute("aria-current", "date");
        cell.style.fontWeight = "bold";
        cell.style.backgroundColor = currentDay;
        cell.style.color = readableOn(currentDay);
        cell.style.borderRadius = "3px";
        cell.style.outline = "2px solid transparent"; // seen where the visitor's own colours replace the page's
    }

    window.brndfncalengreeting = (text) => {
        const greeting = element("span", declarations(window.brndfncalenstyletext));
        greeting.innerHTML = text;
        place(element("span", `display: inline-flex; width: 100%; align-items: center; justify-content: space-between;
            gap: 1em; margin-bottom: 0.4em;`, greeting, clock()));
    };

    window.brndfncalencalendar = (background, currentDay) => {
        const titleStyle = `${CELL} ${declarations(window.brndfntitlestyle)}`;
        const cellStyle = declarations(window.brndfncalenstyletextborder);
        const table = element("table", `width: 100%; border-spacing: 2px; font: inherit; color: inherit;
            text-align: inherit;`);
        let today;
        const draw = () => {
            const now = new Date();
            if (today?.toDateString() === now.toDateString())
                return;
            today = now;
            const title = element("caption", titleStyle, format({ month: "long", year: "numeric" }).format(today));
            table.replaceChildren(title, titles(), weeks(today, cellStyle, currentDay));
        };
        draw();
        place(element("div", `color: ${readableOn(background)};
            ${declarations(window.brndfncalenstylecalander)}; background-color: ${background};`, table));
        brndfn.every(table, 1000, draw); // for the page that stays open past midnight
    };
})();
