// Cool Calender: a form of boxes that shows any month of any year.
//
// The page's text gives the form `brndfncalform` with 44 elements: the buttons and boxes of year (0 to 2) and
// month (3 to 5), 37 day boxes in rows from Sunday to Saturday (6 to 42) and the current-day box (43). It sets
// the globals myDate (today) and Month, fills 1, 4 and 43, then calls FillCalendar. Its buttons call IncDecYear
// and IncDecMonth with -1 or 1. It expects `Months` and `PadSpaces` as well.
(() => {
    "use strict";

    if (window.IncDecMonth)
        return;

    const { say, format, rightEdge } = brndfn;
    const FORM_NAME = "brndfncalform";
    const YEAR = 1, MONTH = 4, FIRST_DAY = 6, LAST_DAY = 42, TODAY = 43, SIZE = 44;
    const BUTTON_LABELS = { 0: "Previous year", 2: "Next year", 3: "Previous month", 5: "Next month" };
    const BOX_LABELS = { [YEAR]: "Year", [MONTH]: "Month", [TODAY]: "Today" };
    const FIRST_YEAR = 1, LAST_YEAR = 9999;
    const SMALLEST_TEXT = 11; // pixels

    // Nothing that the page's style sheets say of cells and boxes holds for these: the calendar is built of widths
    // of its own. ":not(#_)" outranks every class of theirs. The ring around today is light and dark, so that it
    // stands out from whatever colours the author chose.
    const STYLE = `
        :is(.brndfncalendar, .brndfncalendar-frame):not(#_), .brndfncalendar-frame:not(#_) > tbody,
        .brndfncalendar-frame:not(#_) > tbody > tr, .brndfncalendar-frame:not(#_) > tbody > tr > td,
        .brndfncalendar:not(#_) :is(tbody, tr, th, td, input) { all: revert; }
        .brndfncalendar-frame:not(#_) { border: 1px outset black; border-spacing: 1px; }
        .brndfncalendar-frame:not(#_) > tbody > tr > td { padding: 1px; border: 1px inset black; }
        .brndfncalendar:not(#_) { border-spacing: 0; line-height: normal;
            print-color-adjust: exact; -webkit-print-color-adjust: exact; }
        .brndfncalendar:not(#_) :is(th, td) { padding: 0; }
        .brndfncalendar:not(#_) :is(input, .brndfnwhole) { display: block; margin: 0 auto; padding: 0; border: 0;
            border-radius: 0; line-height: 1; text-align: center; max-width: 100%; min-height: 1.15em; }
        .brndfncalendar:not(#_) input[type=text] { cursor: default; }
        .brndfncalendar:not(#_) input[type=button] { cursor: pointer; min-width: 24px; min-height: 24px; }
        .brndfncalendar:not(#_) input[type=button]:hover { filter: brightness(1.1); }
        .brndfncalendar:not(#_) input[type=button]:active { filter: brightness(0.9); }
        .brndfncalendar:not(#_) :is(.brndfnday, input[type=button]) {
            min-width: 2ch; box-shadow: inset 0 0 0 1px rgb(0 0 0 / 0.12); }
        .brndfncalendar:not(#_) .brndfnday[aria-current] {
            box-shadow: inset 0 0 0 2px #000, inset 0 0 0 3px #fff; }
        .brndfncalendar:not(#_) input:focus-visible { outline: 2px solid #000; outline-offset: -2px;
            box-shadow: inset 0 0 0 4px #fff; }
        .brndfncalendar:not(#_) .brndfnwhole { contain: inline-size; overflow-wrap: anywhere;
            line-height: 1.15; }
        .brndfncalendar:not(#_) .brndfnwhole + input { display: none; }
        .brndfncalendar:not(#_) [role=status] { position: absolute; width: 1px; height: 1px; overflow: hidden;
            clip-path: inset(50%); white-space: nowrap; }
        @media (forced-colors: active) { .brndfncalendar .brndfnday[aria-current] { outline: 2px solid; } }`;

    const dressed = new WeakSet();
    let nForms = 0;

    // The month that a form shows. Its own boxes hold it, so that each of several forms keeps its own.
    function shown(form) {
        const year = parseInt(form.elements[YEAR].value, 10) || window.myDate.getFullYear();
        const month = window.Months.indexOf(form.elements[MONTH].value.trim());
        return {
            year: Math.min(Math.max(year, FIRST_YEAR), LAST_YEAR),
            month: month >= 0 ? month : window.Month,
        };
    }

    // A date of any year: the constructor would take the years 0 to 99 for 1900 to 1999.
    function dateOf(year, month, day) {
        const date = new Date(2000, 0, 1);
        date.setFullYear(year, month, day);
        return date;
    }

    function fill(form) {
        const { year, month } = shown(form);
        const blanks = dateOf(year, month, 1).getDay();
        const days = dateOf(year, month + 1, 0).getDate();
        const now = window.myDate;
        const today = now.getFullYear() === year && now.getMonth() === month ? now.getDate() : 0;
        const whole = format({ dateStyle: "full" });
        for (let i = FIRST_DAY; i <= LAST_DAY; i++) {
            const box = form.elements[i];
            const day = i - FIRST_DAY - blanks + 1;
            const inside = day >= 1 && day <= days;
            box.value = inside ? day : "";
            box.ariaLabel = inside ? whole.format(dateOf(year, month, day)) : null;
            box.ariaHidden = inside ? null : "true";
            box.ariaCurrent = inside && day === today ? "date" : null;
        }
        layOut(form);
    }

    // The columns become narrower where the page would have to scroll sideways.
    function layOut(form) {
        const table = tableOf(form);
        const frame = frameOf(table);
        Object.assign(table.style, { tableLayout: "", width: "" });
        const left = frame.parentElement.getBoundingClientRect().left;
        const room = rightEdge(frame) - left - (frame.offsetWidth - table.offsetWidth);
        if (table.offsetWidth > room)
            Object.assign(table.style, { tableLayout: "fixed", width: `${room}px` });
        for (const index of [YEAR, MONTH, ...Object.keys(BUTTON_LABELS)]) {
            const box = form.elements[index];
            if (!fits(box))
                box.style.minWidth = `${box.scrollWidth}px`;
        }
        const today = form.elements[TODAY];
        today.parentElement.querySelector(".brndfnwhole")?.remove();
        if (!fits(today))
            today.before(wholeText(today, table.style.width === ""));
    }

    // A text too long for its box would be cut off: it is set smaller, as far as that can still be read. False
    // where that isn't enough.
    function fits(box) {
        const isWide = () => box.scrollWidth > box.clientWidth && box.clientWidth > 0;
        Object.assign(box.style, { fontSize: box.dataset.brndfnFontSize, minWidth: "" });
        let size = parseFloat(getComputedStyle(box).fontSize);
        while (isWide() && size > SMALLEST_TEXT) {
            size = Math.max(size - 0.5, SMALLEST_TEXT);
            box.style.fontSize = `${size}px`;
        }
        return !isWide();
    }

    // Stands in for a box with a text of several lines, which a box can't show, and takes the width of its cell.
    function wholeText(box, bWide) {
        const text = document.createElement("div");
        text.className = "brndfnwhole";
        text.style.cssText = box.style.cssText;
        const { width, height } = box.style;
        Object.assign(text.style, { height: "", minHeight: height, width: "", minWidth: bWide ? width : "" });
        text.textContent = box.value;
        return text;
    }

    function tableOf(form) {
        return form.elements[FIRST_DAY].closest("table");
    }

    function frameOf(table) {
        return table.closest(".brndfncalendar-frame") ?? table;
    }

    // Gives the form, once, what the parser dropped from its markup and what a keyboard and a screen reader need.
    function dress(form) {
        dressed.add(form);
        const table = tableOf(form);
        const border = table.getAttribute("style");
        brndfn.repair(table);
        if (border && !border.includes(":"))
            table.setAttribute("style", brndfn.css(`border: ${border}`));
        table.classList.add("brndfncalendar");
        putInFrame(table);
        labelTable(table);
        [...form.elements].forEach((element, index) => {
            element.dataset.brndfnFontSize = element.style.fontSize;
            if (element.type === "button") {
                labelButton(element, say(BUTTON_LABELS[index]));
                return;
            }
            element.tabIndex = -1;
            if (index in BOX_LABELS)
                element.setAttribute("aria-label", say(BOX_LABELS[index]));
            else
                element.classList.add("brndfnday");
        });
    }

    // The text puts the table straight into another one, which frames it. The parser has closed that one early
    // and left it empty in front: the table goes back in.
    function putInFrame(table) {
        const outer = table.previousElementSibling;
        const bFramed = outer?.localName === "table" && !outer.firstElementChild;
        const box = bFramed ? outer : table;
        if (bFramed) {
            outer.classList.add("brndfncalendar-frame");
            outer.setAttribute("role", "presentation");
            outer.insertRow().insertCell().append(table);
        }
        for (const coloured of [box, ...table.querySelectorAll("[bgcolor]")])
            coloured.style.backgroundColor = coloured.getAttribute("bgcolor");
        // The alignment is the name of the tag around; only "center" is one that a browser knows.
        const around = box.parentElement;
        if (getComputedStyle(around).display === "inline")
            around.style.display = "block";
        if (around.localName === "right")
            box.style.marginLeft = "auto";
    }

    function labelTable(table) {
        table.setAttribute("aria-label", say("Calendar"));
        const [yearRow, monthRow, titleRow] = table.rows;
        [yearRow, monthRow].forEach((row) => row.cells[1].setAttribute("role", "cell"));
        const weekday = format({ weekday: "long" }); // that January began on a Sunday
        [...titleRow.cells].forEach((title, index) => {
            title.scope = "col";
            title.setAttribute("aria-label", weekday.format(new Date(2023, 0, 1 + index)));
        });
        const status = document.createElement("div");
        status.setAttribute("role", "status");
        yearRow.cells[1].append(status);
    }

    // A caption of signs alone, as "<<", tells nothing; one in words is said first, as it is seen.
    function labelButton(button, label) {
        const words = /\p{L}/u.test(button.value);
        button.setAttribute("aria-label", words ? `${button.value}, ${label.toLocaleLowerCase()}` : label);
        button.title = label;
    }

    function move(months) {
        const pressed = window.event && window.event.target;
        const form = (pressed && dressed.has(pressed.form) && pressed.form) || document[FORM_NAME];
        const { year, month } = shown(form);
        const moved = year * 12 + month + months;
        if (moved < FIRST_YEAR * 12 || moved >= (LAST_YEAR + 1) * 12)
            return;
        window.Month = moved % 12;
        form.elements[YEAR].value = Math.floor(moved / 12);
        form.elements[MONTH].value = window.PadSpaces(window.Months[window.Month]);
        fill(form);
        const status = form.elements[YEAR].parentElement.querySelector("[role=status]");
        status.textContent = `${window.Months[window.Month]} ${form.elements[YEAR].value}`;
    }

    // The text takes the first three characters of a name, which not every language's names have.
    const monthNames = (month) => Array.from({ length: 12 }, (_, index) => month.format(new Date(2023, index, 1)));
    const names = monthNames(format({ month: "long" }));
    window.Months = names.every((name) => name.length >= 3)
        ? names
        : monthNames(new Intl.DateTimeFormat("en", { month: "long" }));

    // The month's box centres its text by itself: nothing is to be padded.
    window.PadSpaces = (name) => name;

    window.FillCalendar = () => {
        const form = document[FORM_NAME];
        if (!dressed.has(form)) {
            dress(form);
            brndfn.onResize(frameOf(tableOf(form)).parentElement, () => layOut(form));
        }
        fill(form);
    };
    window.IncDecYear = (step) => move(12 * step);
    window.IncDecMonth = (step) => move(step);

    const style = document.createElement("style");
    style.textContent = STYLE;
    document.head.append(style);

    // Inside a form of the page's own the parser drops the calendar's, and the boxes become the page's. They get
    // their form back in the cell of their first button, and belong to it by its id.
    function adoptBoxes(button) {
        const boxes = [...button.closest("table").querySelectorAll("input")];
        if (!button.form?.contains(button) || boxes.length < SIZE)
            return;
        const form = document.createElement("form");
        form.name = FORM_NAME;
        form.id = `${FORM_NAME}-${++nForms}`;
        form.hidden = true;
        button.before(form);
        boxes.forEach((box) => box.setAttribute("form", form.id));
    }

    // A second form of the name would turn document.brndfncalform into a collection, and its script would fail.
    // The observer runs ahead of that script: the name goes to the latest form.
    const observer = new MutationObserver(() => {
        document.querySelectorAll('input[onclick="IncDecYear(-1)"]').forEach(adoptBoxes);
        [...document.getElementsByName(FORM_NAME)].slice(0, -1).forEach((form) => form.removeAttribute("name"));
    });
    observer.observe(document, { childList: true, subtree: true });
    brndfn.ready(() => observer.disconnect());
})();
