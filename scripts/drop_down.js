// The drop-down list of links that Fade Select Box and Link Select Table share; the build puts it between
// orrelix-compat.js and the script of either.
//
//     const dropDown = brndfn.dropDown({ box, field, text, list, rows, options, label, overCss });
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

    const STYLE = `
        .brndfn-frame { font: inherit !important; color: inherit !important; }
        .brndfn-box { box-sizing: border-box; display: inline-block; vertical-align: top; text-align: left; }
        .brndfn-field { user-select: none; -webkit-user-select: none; }
        .brndfn-text { overflow: hidden; text-overflow: ellipsis; white-space: nowrap; }
        :where(.brndfn-text, .brndfn-row) img { vertical-align: middle; margin-right: 0.3em; }
        :where(.brndfn-list) { border: 0; padding: 0; color: inherit; }
        .brndfn-list { position: absolute !important; visibility: visible !important; width: max-content !important;
            inset: auto; margin: 0; box-sizing: border-box; overflow: auto; }
        .brndfn-row { box-sizing: border-box; display: flex; align-items: center; white-space: nowrap; }`;
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

    // An image without alternative text is named by the item's text or, where there is none, by the address. One
    // that was given no size (0 by 0) shows in its own.
    function mendImages(row, address) {
        for (const image of row.querySelectorAll("img")) {
            if (!image.hasAttribute("alt"))
                image.alt = row.textContent.trim() === "" ? address : "";
            if (image.getAttribute("width") === "0" && image.getAttribute("height") === "0") {
                image.removeAttribute("width");
                image.removeAttribute("height");
            }
        }
    }

    class DropDown {
        // box      the element that answers as "this" in its onchange attribute
        // field    opens the list; text, within it, shows the chosen item
        // list     holds rows, one element for each of options (objects whose value is the address)
        // label    the name for a screen reader
        // overCss  what the marked row wears on top of its own style
        // nShown   how many rows the open list shows before it scrolls
        // onOpen() is called when the list is there, onClose(hide) when it is to go: by calling hide
        constructor(parts) {
            Object.assign(this, { nShown: Infinity, onOpen() {}, onClose: (hide) => hide() }, parts);
            this.bOpen = false;
            this.chosen = 0;
            this.marked = undefined; // {index, styles}: the row that wears overCss, and what it wore before
            this.typed = { text: "", at: 0 };
            this.bByKeys = false; // a key came last: rows that pass under a resting pointer tell nothing
            this.place = this.place.bind(this);
            this.pressed = this.pressed.bind(this);
            this.prepare();
            this.listen();
            this.setChosen(0);
        }

        prepare() {
            const { box, field, text, list, rows, options, label } = this;
            const id = `brndfn-list-${++nLists}`;
            box.classList.add("brndfn-box");
            const frame = box.closest("table");
            frame.classList.add("brndfn-frame");
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
                mendImages(row, options[index].value);
            });
            Object.defineProperty(box, "options", { get: () => options });
            Object.defineProperty(box, "selectedIndex", {
                get: () => this.chosen,
                set: (index) => this.setChosen(index),
            });
        }

        listen() {
            const { box, list } = this;
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
            list.addEventListener("mousemove", (event) => {
                this.bByKeys = false;
                this.over(event);
            });
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
            this.steadyRows();
            this.place();
            this.field.setAttribute("aria-expanded", true);
            this.moveTo(this.chosen);
            document.addEventListener("pointerdown", this.pressed, true);
            document.addEventListener("scroll", this.place, { capture: true, passive: true });
            window.addEventListener("resize", this.place);
            this.onOpen();
        }

        close() {
            if (!this.bOpen)
                return;
            this.bOpen = false;
            document.removeEventListener("pointerdown", this.pressed, true);
            document.removeEventListener("scroll", this.place, { capture: true });
            window.removeEventListener("resize", this.place);
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

        // Below the box, or above it where there is more room; never out of the window.
        place(event) {
            const { list, box, rows } = this;
            if (event?.target === list)
                return;
            const view = document.scrollingElement ?? document.documentElement;
            const at = box.getBoundingClientRect();
            list.style.minWidth = `${Math.max(at.width, this.width)}px`;
            list.style.maxWidth = `${view.clientWidth - 2 * WINDOW_EDGE}px`;
            list.style.maxHeight = "none";
            const last = rows[Math.min(this.nShown, rows.length) - 1];
            const borders = list.offsetHeight - list.clientHeight;
            const wanted = last.offsetTop + last.offsetHeight + borders;
            const above = at.top - WINDOW_EDGE;
            const below = view.clientHeight - at.bottom - WINDOW_EDGE;
            const bUp = wanted > below && above > below;
            const height = Math.min(wanted, Math.max(bUp ? above : below, rows[0].offsetHeight));
            const left = Math.min(at.left, view.clientWidth - WINDOW_EDGE - list.offsetWidth);
            list.style.maxHeight = `${height}px`;
            list.style.left = `${Math.max(left, WINDOW_EDGE) + window.scrollX}px`;
            list.style.top = `${(bUp ? at.top - height : at.bottom) + window.scrollY}px`;
        }

        // Makes each row as high, and the list as wide, as the larger of its two looks, so that nothing jumps under
        // the pointer when the mark moves.
        steadyRows() {
            const { list, rows } = this;
            list.style.minWidth = "";
            for (const row of rows)
                row.style.minHeight = "";
            const heights = rows.map((row) => row.offsetHeight);
            const width = list.offsetWidth;
            const families = rows.map(familyOf);
            const styles = rows.map((row, index) => this.dress(row, families[index]));
            const markedHeights = rows.map((row) => row.offsetHeight);
            this.width = Math.max(width, list.offsetWidth);
            rows.forEach((row, index) => {
                undress(styles[index]);
                row.style.minHeight = `${Math.max(heights[index], markedHeights[index])}px`;
            });
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

        over(event) {
            const index = this.rowOf(event);
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
            const bTyped = event.key.length === 1 && (event.key !== " " || this.isTyping(event));
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
