// The drop-down list of links that Fade Select Box and Link Select Table share; the build puts it between
// orrelix-compat.js and the script of either.
//
//     const dropDown = brndfn.dropDown({ box, field, text, list, rows, options, overCss });
//
// The box becomes what the page's text counts on: it has options and selectedIndex, and its onchange attribute
// runs when the visitor chooses an item that has an address. The field is the combobox that keys and screen readers
// work on; the list drops down in the browser's top layer, where it moves nothing of the page and only the window's
// edge can cut it off.
(() => {
    "use strict";

    const brndfn = window.brndfn;
    if (brndfn.dropDown)
        return;

    // Nothing that the page's style sheets say of tables, cells and images holds here, nor what they say of all
    // elements: ":not(#_)" outranks every class of theirs. On paper the list stands open below its field.
    const STYLE = `
        :where(.brndfn-table, .brndfn-table > tbody, .brndfn-table > tbody > tr, .brndfn-table > tbody > tr > td,
            .brndfn-text img, .brndfn-row img):not(#_) { all: revert; }
        :where(.brndfn-table > tbody > tr > td):not(#_) { padding: 1px; }
        .brndfn-table:not(#_) { font: inherit; color: inherit; }
        .brndfn-box:not(#_) { box-sizing: border-box; display: inline-block; vertical-align: top; text-align: left;
            line-height: normal; print-color-adjust: exact; -webkit-print-color-adjust: exact; }
        .brndfn-field:not(#_) { user-select: none; -webkit-user-select: none; }
        .brndfn-text:not(#_) { overflow: hidden; text-overflow: ellipsis; white-space: nowrap; }
        :where(.brndfn-text, .brndfn-row) img:not(#_) { vertical-align: middle; margin-right: 0.3em; }
        :where(.brndfn-list) { border: 0; padding: 0; color: inherit; }
        .brndfn-list:not(#_) { position: absolute; visibility: visible; width: max-content; inset: auto; margin: 0;
            box-sizing: border-box; overflow: hidden auto; overscroll-behavior: contain; }
        .brndfn-row:not(#_) { box-sizing: border-box; display: block; align-content: center; white-space: normal;
            overflow-wrap: anywhere; }
        .brndfn-row nobr { white-space: inherit; }
        @media print {
            .brndfn-list:not(#_) { display: block !important; position: static; opacity: 1 !important;
                width: auto !important; max-height: none !important; } }`;
    document.head.append(Object.assign(document.createElement("style"), { textContent: STYLE }));

    // Stands in for the triangle of a symbol font that no visitor has today; as high as the font size says.
    brndfn.dropDownArrow = '<svg viewBox="0 0 10 6" width="0.8em" height="0.48em" fill="currentColor"'
        + ' aria-hidden="true" style="display: block; margin: auto"><path d="M0 0h10L5 6z"/></svg>';

    const WINDOW_EDGE = 4; // pixels that stay free between the list and the window's edge
    const PAGE_OF_ROWS = 10; // what Page Up and Page Down move by
    const TYPING_PAUSE = 800; // milliseconds after which a typed letter begins a new word

    let nLists = 0;

    function setAttributes(element, attributes) {
        for (const [name, value] of Object.entries(attributes))
            element.setAttribute(name, value);
    }

    // An image without alternative text is named by the item's text or, where there is none, by the address.
    function nameImages(row, address) {
        for (const image of row.querySelectorAll("img:not([alt])"))
            image.alt = row.textContent.trim() === "" ? address : "";
    }

    class DropDown {
        // box      the element that answers as "this" in its onchange attribute
        // field    opens the list; text, within it, shows the chosen item
        // list     holds rows, one element for each of options (objects whose value is the address)
        // overCss  what the marked row wears on top of its own style
        // nShown   how many rows the open list shows before it scrolls
        // onOpen() is called when the list is there, onClose(hide) when it is to go: by calling hide
        constructor(parts) {
            Object.assign(this, { nShown: Infinity, onOpen() {}, onClose: (hide) => hide() }, parts);
            this.frame = this.box.closest("table");
            this.bOpen = false;
            this.chosen = 0;
            this.marked = undefined; // {index, styles}: the row that wears overCss, and what it wore before
            this.typed = { text: "", at: 0 };
            this.bByKeys = false; // a key came last: rows that pass under a resting pointer tell nothing
            this.pointer = undefined; // where it was last over the list
            for (const listener of ["pressed", "layOut", "scrolled"])
                this[listener] = this[listener].bind(this);
            this.prepare();
            this.listen();
            this.setChosen(0);
        }

        prepare() {
            const { box, field, frame, text, list, rows, options } = this;
            const id = `brndfn-list-${++nLists}`;
            const label = brndfn.say("Links");
            box.classList.add("brndfn-box");
            frame.classList.add("brndfn-table");
            frame.setAttribute("role", "presentation");
            text.classList.add("brndfn-text");
            field.classList.add("brndfn-field");
            setAttributes(field, {
                role: "combobox", tabindex: 0, "aria-label": label,
                "aria-haspopup": "listbox", "aria-expanded": false, "aria-controls": id,
            });
            list.classList.add("brndfn-list");
            setAttributes(list, { id, role: "listbox", tabindex: -1, "aria-label": label, popover: "manual" });
            rows.forEach((row, index) => {
                row.classList.add("brndfn-row");
                setAttributes(row, { id: `${id}-${index}`, role: "option", "aria-selected": false });
                nameImages(row, options[index].value);
            });
            Object.defineProperty(box, "options", { get: () => options });
            Object.defineProperty(box, "selectedIndex", {
                get: () => this.chosen,
                set: (index) => this.setChosen(index),
            });
        }

        listen() {
            const { box, frame, list } = this;
            box.addEventListener("keydown", (event) => this.key(event));
            box.addEventListener("focusout", (event) => {
                if (!box.contains(event.relatedTarget))
                    this.close();
            });
            // The focus stays on the field when a row is pressed; a press on the list itself is for its scroll bar.
            list.addEventListener("mousedown", (event) => {
                if (event.target !== list)
                    event.preventDefault();
            });
            list.addEventListener("mousemove", (event) => this.over(event));
            brndfn.onResize(frame.parentElement, () => this.keepInWindow());
        }

        // Moves the box to the left, and makes it narrower, where the page would have to scroll sideways for it.
        keepInWindow() {
            const { box, frame } = this;
            this.left ??= parseFloat(getComputedStyle(frame).left) || 0;
            frame.style.left = `${this.left}px`;
            box.style.maxWidth = "";
            const tooFar = frame.getBoundingClientRect().right - brndfn.rightEdge(frame) + WINDOW_EDGE;
            if (tooFar <= 0)
                return;
            const moved = Math.min(tooFar, Math.max(this.left, 0));
            frame.style.left = `${this.left - moved}px`;
            if (tooFar > moved)
                box.style.maxWidth = `${box.offsetWidth - (tooFar - moved)}px`;
        }

        setChosen(index) {
            if (!this.rows[index])
                return;
            this.mark(undefined);
            this.rows[this.chosen].setAttribute("aria-selected", false);
            this.rows[index].setAttribute("aria-selected", true);
            this.chosen = index;
            this.text.replaceChildren(...[...this.rows[index].childNodes].map((node) => node.cloneNode(true)));
            if (this.bOpen)
                this.mark(index);
        }

        choose(index) {
            this.setChosen(index);
            this.close();
            if (this.options[index].value.trim() !== "")
                this.box.dispatchEvent(new Event("change", { bubbles: true }));
        }

        toggle() {
            if (this.bOpen)
                this.close();
            else
                this.open();
        }

        open() {
            if (this.bOpen)
                return;
            this.bOpen = true;
            if (!this.list.matches(":popover-open"))
                this.list.showPopover();
            this.pointer = undefined;
            this.layOut();
            this.field.setAttribute("aria-expanded", true);
            this.moveTo(this.chosen);
            document.addEventListener("pointerdown", this.pressed, true);
            document.addEventListener("scroll", this.scrolled, { capture: true, passive: true });
            window.addEventListener("resize", this.layOut);
            this.onOpen();
        }

        close() {
            if (!this.bOpen)
                return;
            this.bOpen = false;
            document.removeEventListener("pointerdown", this.pressed, true);
            document.removeEventListener("scroll", this.scrolled, { capture: true });
            window.removeEventListener("resize", this.layOut);
            this.field.setAttribute("aria-expanded", false);
            this.field.removeAttribute("aria-activedescendant");
            if (this.list.contains(document.activeElement))
                this.field.focus({ preventScroll: true });
            this.mark(undefined);
            this.onClose(() => {
                if (!this.bOpen)
                    this.list.hidePopover();
            });
        }

        pressed(event) {
            if (!this.box.contains(event.target))
                this.close();
        }

        // The list goes with its box; what else scrolls on the page is nothing to it.
        scrolled(event) {
            if (event.target.contains(this.box))
                this.place();
        }

        // Gives the list its size: as wide as its widest row, as high as its rows, and never out of the window, where
        // long texts go on in a second line.
        layOut() {
            const { list, box, rows } = this;
            const view = document.scrollingElement ?? document.documentElement;
            const at = box.getBoundingClientRect();
            const room = view.clientWidth - 2 * WINDOW_EDGE;
            const nScrolled = list.scrollTop;
            list.style.maxHeight = "none";
            this.steadyRows(at.width, room);
            const last = rows[Math.min(this.nShown, rows.length) - 1];
            const wanted = last.offsetTop + last.offsetHeight + list.offsetHeight - list.clientHeight;
            const sides = list.offsetWidth - list.clientWidth;
            const above = at.top - WINDOW_EDGE;
            const below = view.clientHeight - at.bottom - WINDOW_EDGE;
            this.bUp = wanted > below && above > below;
            const height = Math.min(wanted, Math.max(this.bUp ? above : below, rows[0].offsetHeight));
            list.style.maxHeight = `${height}px`;
            const scrollBar = list.offsetWidth - list.clientWidth - sides;
            list.style.width = `${Math.min(list.offsetWidth + scrollBar, room)}px`;
            list.scrollTop = nScrolled;
            this.place();
        }

        // Below the box, or above it where there is more room.
        place() {
            const { list, box, bUp } = this;
            const view = document.scrollingElement ?? document.documentElement;
            const at = box.getBoundingClientRect();
            const left = Math.min(at.left, view.clientWidth - WINDOW_EDGE - list.offsetWidth);
            list.style.left = `${Math.max(left, WINDOW_EDGE) + window.scrollX}px`;
            list.style.top = `${(bUp ? at.top - list.offsetHeight : at.bottom) + window.scrollY}px`;
        }

        // Makes the list as wide, and each row as high, as the larger of its two looks, so that nothing jumps under
        // the pointer when the mark moves.
        steadyRows(least, most) {
            const { list, rows } = this;
            list.style.width = "";
            for (const row of rows)
                row.style.minHeight = "";
            const families = rows.map(familyOf);
            const width = list.offsetWidth;
            const styles = rows.map((row, index) => this.dress(row, families[index]));
            list.style.width = `${Math.min(Math.max(least, width, list.offsetWidth), most)}px`;
            const markedHeights = rows.map((row) => row.offsetHeight);
            styles.forEach(undress);
            const heights = rows.map((row) => row.offsetHeight);
            rows.forEach((row, index) => (row.style.minHeight = `${Math.max(heights[index], markedHeights[index])}px`));
        }

        // Gives the row the look of the mark; the result is for undress. An item's own font and colour stand on a
        // span inside it, so the mark's go there too. A font that the visitor doesn't have falls back to the item's.
        dress(row, family = familyOf(row)) {
            const span = textOf(row);
            const styles = [row, span].map((element) => [element, element.style.cssText]);
            row.style.cssText += `; ${this.overCss}`;
            if (row.style.fontFamily)
                row.style.fontFamily += `, ${family}`;
            for (const property of ["color", "fontFamily", "fontStyle", "fontWeight", "fontSize"])
                span.style[property] = row.style[property] || span.style[property];
            return styles;
        }

        mark(index) {
            if (index === this.marked?.index)
                return;
            if (this.marked)
                undress(this.marked.styles);
            this.marked = index === undefined ? undefined : { index, styles: this.dress(this.rows[index]) };
            if (this.marked)
                this.field.setAttribute("aria-activedescendant", this.rows[index].id);
        }

        // The number of the row that an event of the list is about; -1 for none.
        rowOf(event) {
            return this.rows.indexOf(event.target.closest(".brndfn-row"));
        }

        // Some browsers tell of a pointer that moves when rows pass under a resting one: its place tells them apart.
        over(event) {
            const { screenX, screenY } = event;
            const index = this.rowOf(event);
            if (this.pointer && (this.pointer.screenX !== screenX || this.pointer.screenY !== screenY))
                this.bByKeys = false;
            this.pointer = { screenX, screenY };
            if (!this.bByKeys && this.bOpen && index >= 0)
                this.mark(index);
        }

        out() {
            if (!this.bByKeys && this.bOpen)
                this.mark(this.chosen);
        }

        click(event) {
            const index = this.rowOf(event);
            if (this.bOpen && index >= 0)
                this.choose(index);
        }

        key(event) {
            if (event.ctrlKey || event.metaKey)
                return;
            this.bByKeys = true;
            const bTyped = event.key.length === 1 && !event.altKey && (event.key !== " " || this.isTyping(event));
            if (bTyped ? !this.type(event) : !this.command(event))
                return;
            event.preventDefault();
            event.stopPropagation();
        }

        // Opens a closed list, and works on an open one. False for a key that has no meaning here.
        command({ key, altKey }) {
            const last = this.rows.length - 1;
            const at = this.marked?.index ?? this.chosen;
            const moves = {
                ArrowDown: at + 1, ArrowUp: at - 1, PageDown: at + PAGE_OF_ROWS, PageUp: at - PAGE_OF_ROWS,
                Home: 0, End: last,
            };
            const bMoves = key in moves;
            const bChooses = key === "Enter" || key === " ";
            if (!this.bOpen) {
                if (bMoves || bChooses)
                    this.open();
                if (key === "Home" || key === "End")
                    this.moveTo(moves[key]);
                return bMoves || bChooses;
            }
            if (key === "Escape" || (key === "ArrowUp" && altKey))
                this.close();
            else if (bChooses)
                this.choose(at);
            else if (bMoves)
                this.moveTo(Math.min(Math.max(moves[key], 0), last));
            else
                return false;
            return true;
        }

        moveTo(index) {
            this.mark(index);
            this.rows[index].scrollIntoView({ block: "nearest" });
        }

        isTyping({ timeStamp }) {
            return this.typed.text !== "" && timeStamp - this.typed.at < TYPING_PAUSE;
        }

        // Goes to the next row that begins with what was typed; the same letter again goes on to the next such row.
        type(event) {
            const letter = event.key.toLocaleLowerCase();
            const text = this.isTyping(event) ? this.typed.text + letter : letter;
            this.typed = { text, at: event.timeStamp };
            this.open();
            const bSameLetter = [...text].every((each) => each === letter);
            const sought = bSameLetter ? letter : text;
            const at = this.marked.index + (bSameLetter ? 1 : 0);
            const order = [...this.rows.keys()].map((step) => (at + step) % this.rows.length);
            const found = order.find((index) => this.wordsOf(index).startsWith(sought));
            if (found !== undefined)
                this.moveTo(found);
            return true;
        }

        wordsOf(index) {
            return this.rows[index].textContent.trim().toLocaleLowerCase();
        }
    }

    // What bears an item's own font and colour.
    function textOf(row) {
        return row.querySelector(":scope > nobr > span") ?? row;
    }

    function familyOf(row) {
        return getComputedStyle(textOf(row)).fontFamily;
    }

    function undress(styles) {
        for (const [element, cssText] of styles)
            element.style.cssText = cssText;
    }

    brndfn.dropDown = (parts) => new DropDown(parts);
})();
