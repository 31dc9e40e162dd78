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

    const FORM_NAME = "brndfncalform";
    const YEAR = 1, MONTH = 4, FIRST_DAY = 6, LAST_DAY = 42, TODAY = 43;
    const BUTTON_LABELS = { 0: "Previous year", 2: "Next year", 3: "Previous month", 5: "Next month" };
    const BOX_LABELS = { [YEAR]: "Year", [MONTH]: "Month", [TODAY]: "Today" };
    const FIRST_YEAR = 1, LAST_YEAR = 9999;
    const WEEKDAYS = ["Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"];

    // Inputs differ between pages with and without a doctype in how they count their size; both get one look.
    // The ring around today is light and dark, so that it stands out from whatever colours the author chose.
    const STYLE = `
        .brndfncalendar input { display: block; margin: 0 auto; padding: 0; border: 0;
            border-radius: 0; line-height: 1; text-align: center; }
        .brndfncalendar input[type=text] { cursor: default; }
        .brndfncalendar input[type=button] { cursor: pointer; }
        .brndfncalendar input[type=button]:hover { filter: brightness(1.1); }
        .brndfncalendar input[type=button]:active { filter: brightness(0.9); }
        .brndfncalendar .brndfnday, .brndfncalendar input[type=button] {
            box-shadow: inset 0 0 0 1px rgb(0 0 0 / 0.12); }
        .brndfncalendar .brndfnday[aria-current] {
            box-shadow: inset 0 0 0 2px rgb(0 0 0 / 0.85), inset 0 0 0 3px rgb(255 255 255 / 0.85); }
        .brndfncalendar input:focus-visible { outline: 2px solid #000; outline-offset: -2px;
            box-shadow: inset 0 0 0 4px #fff; }
        .brndfncalendar [role=status] { position: absolute; width: 1px; height: 1px; overflow: hidden;
            clip-path: inset(50%); white-space: nowrap; }
        @media (forced-colors: active) { .brndfncalendar .brndfnday[aria-current] { outline: 2px solid; } }`;

    const dressed = new WeakSet();

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
        for (let i = FIRST_DAY; i <= LAST_DAY; i++) {
            const box = form.elements[i];
            const day = i - FIRST_DAY - blanks + 1;
            const inside = day >= 1 && day <= days;
            const weekday = WEEKDAYS[(i - FIRST_DAY) % 7];
            box.value = inside ? day : "";
            box.ariaLabel = inside ? `${weekday}, ${window.Months[month]} ${day}, ${year}` : null;
            box.ariaHidden = inside ? null : "true";
            box.ariaCurrent = inside && day === today ? "date" : null;
        }
        [...Object.keys(BOX_LABELS), ...Object.keys(BUTTON_LABELS)].forEach((index) => fit(form.elements[index]));
    }

    // A text too long for its box would be cut off: it is set smaller.
    function fit(box) {
        box.style.fontSize = box.dataset.brndfnFontSize;
        if (box.scrollWidth > box.clientWidth && box.clientWidth > 0) {
            const size = parseFloat(getComputedStyle(box).fontSize);
            box.style.fontSize = `${Math.floor((size * box.clientWidth * 10) / box.scrollWidth) / 10}px`;
        }
    }

    // Gives the form, once, what the parser dropped from its markup and what a keyboard and a screen reader need.
    function dress(form) {
        dressed.add(form);
        const table = form.elements[FIRST_DAY].closest("table");
        const border = table.getAttribute("style");
        brndfn.repair(table);
        if (border && !border.includes(":"))
            table.setAttribute("style", brndfn.css(`border: ${border}`));
        frame(table);
        table.classList.add("brndfncalendar");
        labelTable(table);
        [...form.elements].forEach((element, index) => {
            element.dataset.brndfnFontSize = element.style.fontSize;
            if (element.type === "button") {
                labelButton(element, BUTTON_LABELS[index]);
                return;
            }
            element.tabIndex = -1;
            if (index in BOX_LABELS)
                element.setAttribute("aria-label", BOX_LABELS[index]);
            else
                element.classList.add("brndfnday");
        });
    }

    // The text puts the table straight into another one, which frames it. The parser has closed that one early
    // and left it empty in front: the table goes back in.
    function frame(table) {
        const outer = table.previousElementSibling;
        let box = table;
        if (outer && outer.localName === "table" && !outer.firstElementChild) {
            outer.setAttribute("role", "presentation");
            outer.insertRow().insertCell().append(table);
            box = outer;
        }
        // The alignment is the name of the tag around; only "center" is one that a browser knows.
        if (box.parentElement.localName === "right")
            box.style.marginLeft = "auto";
    }

    function labelTable(table) {
        table.setAttribute("aria-label", "Calendar");
        const [yearRow, monthRow, titleRow] = table.rows;
        [yearRow, monthRow].forEach((row) => row.cells[1].setAttribute("role", "cell"));
        [...titleRow.cells].forEach((title, index) => {
            title.scope = "col";
            title.setAttribute("aria-label", WEEKDAYS[index]);
        });
        const status = document.createElement("div");
        status.setAttribute("role", "status");
        yearRow.cells[1].append(status);
    }

    // A caption of signs alone, as "<<", tells nothing; one in words is said first, as it is seen.
    function labelButton(button, label) {
        const words = /\p{L}/u.test(button.value);
        button.setAttribute("aria-label", words ? `${button.value}, ${label.toLowerCase()}` : label);
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

    window.Months = ["January", "February", "March", "April", "May", "June", "July", "August", "September",
        "October", "November", "December"];

    // The month's box centres its text by itself: nothing is to be padded.
    window.PadSpaces = (name) => name;

    window.FillCalendar = () => {
        const form = document[FORM_NAME];
        if (!dressed.has(form))
            dress(form);
        fill(form);
    };
    window.IncDecYear = (step) => move(12 * step);
    window.IncDecMonth = (step) => move(step);

    const style = document.createElement("style");
    style.textContent = STYLE;
    document.head.append(style);

    // A second form of the name would turn document.brndfncalform into a collection, and its script would fail.
    // The observer runs ahead of that script: the name goes to the latest form.
    const observer = new MutationObserver(() => {
        [...document.getElementsByName(FORM_NAME)].slice(0, -1).forEach((form) => form.removeAttribute("name"));
    });
    observer.observe(document, { childList: true, subtree: true });
    brndfn.ready(() => observer.disconnect());
})();
