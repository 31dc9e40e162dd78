// Calender: a greeting with a clock, and the month with today marked.
//
// The page's text sets five globals, each a whole HTML attribute (style='...'): brndfncalenstyletext for the
// greeting, brndfncalenstyletextbutton for the clock's box, brndfntitlestyle for the month's title,
// brndfncalenstylecalander for the calendar's border and its dates, brndfncalenstyletextborder for the border of a
// date's cell. Then it calls brndfncalengreeting(text) and brndfncalencalendar(background, currentDay), colours
// with a leading "#"; each draws at the place of the call.
(() => {
    "use strict";

    const { say, format } = brndfn;
    const CELL = "padding: 0.25em min(0.5em, 1.2vw);";

    // Nothing that the page's style sheets say of tables holds for the calendar's; the author's own text in the
    // greeting stays with the page. ":not(#_)" outranks every class of theirs.
    const STYLE = `
        .brndfncalander:not(#_) { all: revert; line-height: normal;
            print-color-adjust: exact; -webkit-print-color-adjust: exact; }
        td.brndfncalander:not(#_) { padding: 1px; }
        .brndfncalander[align="center"]:not(#_) { margin-inline: auto; }
        .brndfncalander[align="left"]:not(#_) { float: left; }
        .brndfncalander[align="right"]:not(#_) { float: right; }`;
    document.head.append(Object.assign(document.createElement("style"), { textContent: STYLE }));

    // The declarations in such an attribute, as today's browsers take them.
    function declarations(attribute) {
        const [, text] = /style='(.*)'/s.exec(attribute) || ["", ""];
        return brndfn.css(text);
    }

    function element(name, style, ...children) {
        const made = document.createElement(name);
        made.className = "brndfncalander";
        made.style.cssText = style;
        made.append(...children);
        return made;
    }

    // Puts what was drawn where the running script stands, in the cell of the table that frames the calendar; the
    // parser goes on behind it.
    function place(drawn) {
        const cell = document.currentScript?.parentElement ?? document.body;
        cell.append(drawn);
        const layout = cell.closest("table");
        if (!layout)
            return;
        layout.setAttribute("role", "presentation");
        for (let part = cell; part !== layout.parentElement; part = part.parentElement)
            part.classList.add("brndfncalander");
    }

    // The red, green and blue of "#rrggbb", from 0 to 255; none for what is no such colour.
    const channels = (colour) => (/^#[0-9a-f]{6}$/i.test(colour) ? colour.match(/\w\w/g) : []).map((part) => parseInt(part, 16));

    // How light a colour is to the eye, from 0 to 1: the relative luminance that contrasts are reckoned with.
    function luminance(colour) {
        const linear = channels(colour)
            .map((channel) => channel / 255)
            .map((part) => (part <= 0.04045 ? part / 12.92 : ((part + 0.055) / 1.055) ** 2.4));
        return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2];
    }

    function contrast(one, other) {
        const [dark, light] = [luminance(one), luminance(other)].sort((a, b) => a - b);
        return (light + 0.05) / (dark + 0.05);
    }

    // Black or white, whichever can be read better on the colour: it has a contrast of 4.58 at least.
    function readableOn(colour) {
        const [black, white] = ["#000000", "#ffffff"].map((text) => contrast(colour, text));
        return isNaN(black) ? "inherit" : black > white ? "black" : "white";
    }

    function clock() {
        const time = format({ timeStyle: brndfn.calm() ? "short" : "medium" });
        const box = element("span", `display: inline-flex; flex: none; align-items: center; justify-content: center;
            box-sizing: border-box; padding: 0 0.3em; border: 1px solid rgb(128 128 128 / 0.5); border-radius: 3px;
            overflow: hidden; white-space: nowrap; font-variant-numeric: tabular-nums;
            ${declarations(window.brndfncalenstyletextbutton)}`);
        // A time too large for the box makes it grow.
        Object.assign(box.style, { minWidth: box.style.width, minHeight: box.style.height, width: "", height: "" });
        box.setAttribute("role", "timer"); // a role that is not read out at each change
        box.setAttribute("aria-label", say("Time"));
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
    function weeks(today, cellStyle, mark) {
        const body = element("tbody", "");
        const blanks = new Date(today.getFullYear(), today.getMonth(), 1).getDay();
        const days = new Date(today.getFullYear(), today.getMonth() + 1, 0).getDate();
        for (let first = 1 - blanks; first <= days; first += 7) {
            const row = element("tr", "");
            body.append(row);
            for (let day = first; day < first + 7; day++) {
                const cell = element("td", CELL + cellStyle, day >= 1 && day <= days ? String(day) : "");
                if (day === today.getDate())
                    mark(cell);
                row.append(cell);
            }
        }
        return body;
    }

    // A mark that is hardly told from the calendar gets a frame.
    function markToday(cell, background, currentDay) {
        cell.setAttribute("aria-current", "date");
        cell.style.fontWeight = "bold";
        cell.style.backgroundColor = currentDay;
        cell.style.color = readableOn(currentDay);
        cell.style.borderRadius = "3px";
        if (!(contrast(background, currentDay) >= 3))
            cell.style.boxShadow = "inset 0 0 0 2px";
        cell.style.outline = "2px solid transparent"; // seen where the visitor's own colours replace the page's
    }

    window.brndfncalengreeting = (text) => {
        const greeting = document.createElement("span");
        greeting.style.cssText = declarations(window.brndfncalenstyletext);
        greeting.innerHTML = text;
        place(element("span", `display: inline-flex; width: 100%; align-items: center; justify-content: space-between;
            flex-wrap: wrap; gap: 0.2em 1em; margin-bottom: 0.4em;`, greeting, clock()));
    };

    window.brndfncalencalendar = (background, currentDay) => {
        const titleStyle = `${CELL} ${declarations(window.brndfntitlestyle)}`;
        const cellStyle = declarations(window.brndfncalenstyletextborder);
        const table = element("table", `width: 100%; border-spacing: 2px; font: inherit; color: inherit;
            text-align: inherit;`);
        const mark = (cell) => markToday(cell, background, currentDay);
        let today;
        const draw = () => {
            const now = new Date();
            if (today?.toDateString() === now.toDateString())
                return;
            today = now;
            const title = element("caption", titleStyle, format({ month: "long", year: "numeric" }).format(today));
            table.replaceChildren(title, titles(), weeks(today, cellStyle, mark));
        };
        draw();
        const calendar = element("div", `color: ${readableOn(background)};
            ${declarations(window.brndfncalenstylecalander)}; background-color: ${background};`, table);
        // Seven columns fit into the narrowest of windows.
        calendar.style.fontSize = `min(${calendar.style.fontSize || "1em"}, 4.2vw)`;
        place(calendar);
        brndfn.every(table, 1000, draw); // for the page that stays open past midnight
    };
})();
