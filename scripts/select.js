// Link Select Table: a drop-down list of links, built of a span, a table and a div for the list. The text of the page
// gives them with calls of the functions below in their attributes, PREFIX + "overOptionCss" and "sizedBorderCss" as
// variables, and a function for window.onload that calls LinkinitSelectBox for nearly every span of the page.
(() => {
    "use strict";

    const brndfn = window.brndfn;
    const LIST = 'div[onclick^="LinkoptionClick("]';

    // The lists are hidden while the page still loads, so that nothing below them jumps.
    const STYLE = `
        span[size] > ${LIST}:not(:popover-open) { display: none; }
        .brndfn-link-field:not(#_) { table-layout: fixed; width: 100%; border-spacing: 0; }
        .brndfn-link-field:not(#_) .brndfn-text { padding: 1px 4px; }
        .brndfn-link-field:not(#_) .coolButton { box-sizing: border-box; width: 20px; padding: 0; font-size: 10px;
            border: 2px outset ButtonFace; background: ButtonFace; color: ButtonText; }`;
    document.head.append(Object.assign(document.createElement("style"), { textContent: STYLE }));

    const dropDowns = new WeakMap();

    function makeDropDown(box, list, overCss, sizedBorderCss) {
        const frame = box.closest("table");
        const field = box.querySelector(":scope > table");
        const [text, button] = field.rows[0].cells;
        const rows = [...list.children];
        brndfn.repair(frame);
        if (frame.previousElementSibling?.localName === "style")
            brndfn.repair(frame.previousElementSibling);
        box.size = Number(box.getAttribute("size")) || rows.length;
        button.innerHTML = brndfn.dropDownArrow;
        field.classList.add("brndfn-table", "brndfn-link-field");
        list.style.cssText = brndfn.css(`border: ${sizedBorderCss}`);
        for (const element of field.querySelectorAll("tbody, tr, td"))
            element.setAttribute("role", "none");
        const { backgroundColor, color } = getComputedStyle(rows[0]);
        Object.assign(text.style, { backgroundColor, color });
        return brndfn.dropDown({
            box, field, text, list, rows,
            options: rows.map((row) => ({ value: row.getAttribute("value") ?? "", text: row.textContent })),
            overCss: brndfn.css(overCss),
            nShown: box.size,
        });
    }

    // Spans that are no Link Select Table, and those that are ready, stay as they are. The styles that a box is
    // called with may be another box's: its own are found by its name.
    window.LinkinitSelectBox = (box, overCss, sizedBorderCss) => {
        const list = box.querySelector(`:scope > ${LIST}`);
        if (!list || dropDowns.has(box) || list.children.length === 0)
            return;
        const own = (name, given) => window[box.className.replace(/select$/, "") + name] ?? given;
        const styles = [own("overOptionCss", overCss), own("sizedBorderCss", sizedBorderCss)];
        if (styles.includes(undefined)) // the text's own script hasn't run: the list is there to be read
            list.style.display = "block";
        else
            dropDowns.set(box, makeDropDown(box, list, ...styles));
    };

    window.toggleDropDown = (box) => dropDowns.get(box)?.toggle();

    // The three below are called by the list's own event attributes. Their argument, the look of the item under the
    // mouse, is known to the drop-down list.
    const ofEvent = () => dropDowns.get(event.currentTarget.parentElement);
    window.LinkoptionClick = () => ofEvent()?.click(event);
    window.LinkoptionOver = () => ofEvent()?.over(event);
    window.LinkoptionOut = () => ofEvent()?.out();

    // The page's own call comes with the load event, after the last image, and passes over a box without a title.
    brndfn.ready(() => {
        for (const list of document.querySelectorAll(`span > ${LIST}`))
            window.LinkinitSelectBox(list.parentElement);
    });
})();
