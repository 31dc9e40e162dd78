// Scroll Text: the texts pass through their box upwards, one after another, for ever.
//
// The page's text gives, all fixed names:
//     brndfnmessages        the texts, each the HTML of a link
//     brndfnscrollerwidth, brndfnscrollerheight, brndfnscrollerbgcolor    of the box, pixels and "#rrggbb"
//     brndfnspeednormal     "Layer Speed": milliseconds that a text takes to travel the height of the box
//     brndfnspeedmore       "Delay Time": milliseconds that a text rests in the middle of the box
// and, where document.all is, the box: span#brndfnscrollmain2 > div > div#first2 + div#second2, the two divs with
// texts 0 and 1 (or text 0 twice) on top of each other. Its <ilayer> is for other browsers and stays unseen.
// This file gives startscroll(), which the page's text makes its window.onload.
(() => {
    "use strict";

    if (window.startscroll)
        return;

    const BOX = "#brndfnscrollmain2";
    const USUAL_TRAVEL = 3000;
    const USUAL_REST = 100;
    // Faster than this nobody can read, and the box would flicker.
    const LEAST_TRAVEL = 200;

    // The boxes that are ready to move, each with the function that starts it; emptied by startscroll.
    const starters = [];
    const prepared = new WeakSet();

    const milliseconds = (value, usual) => (value >= 0 ? Number(value) : usual);

    // The text writes a font list as one quoted name, the old word for the pointing hand and a misspelt decoration.
    function repairStyles(text) {
        return text
            .replace(/font-family:\s*"([^"]*)"/g, (_, list) =>
                `font-family:${list.split(",").map((name) => `"${name.trim()}"`).join(",")}`)
            .replace(/cursor:\s*hand\b/g, "cursor:pointer")
            .replace(/lineth-rough/g, "line-through");
    }

    function repairTable(table) {
        table.setAttribute("role", "presentation");
        for (const layer of table.querySelectorAll("ilayer"))
            layer.hidden = true;
        for (const style of table.querySelectorAll("style"))
            style.textContent = repairStyles(style.textContent);
        brndfn.repair(table);
    }

    // One element for each text: the two that the page has, and new ones behind them. What the page wrote twice, or
    // for want of a text, goes; so does a link with nothing in it, which would be an empty stop for the keyboard.
    // A link is a block: its lines are as high as its own font asks, with a doctype and without.
    function makeItems(frame, texts) {
        const written = [...frame.children];
        const items = texts.map((html, i) => {
            const item = written[i] ?? frame.appendChild(document.createElement("div"));
            if (!written[i])
                item.innerHTML = html;
            Object.assign(item.style, { padding: "1px 4px", boxSizing: "border-box" });
            item.setAttribute("role", "listitem");
            return item;
        });
        for (const surplus of written.slice(texts.length))
            surplus.remove();
        return items.filter((item) => {
            const bShows = item.textContent.trim() !== "" || item.querySelector("img") !== null;
            if (bShows)
                Object.assign(item.firstElementChild?.style ?? {}, { display: "block", width: "fit-content" });
            else
                item.remove();
            return bShows;
        });
    }

    // A link looks the same under the keyboard's focus as under the mouse.
    function showFocus(box) {
        const restyle = (name) => ({ target }) => {
            const bKeyboard = name === "brnout" || target.matches(":focus-visible");
            if (bKeyboard && /^brn(over|out|click)$/.test(target.className))
                target.className = name;
        };
        box.addEventListener("focusin", restyle("brnover"));
        box.addEventListener("focusout", restyle("brnout"));
    }

    // Without movement: all texts below each other, to be scrolled by hand.
    function layOutAsList(box, frame, items) {
        Object.assign(box.style, { overflow: "hidden auto" });
        Object.assign(frame.style, { position: "static", height: "auto", clip: "auto" });
        for (const item of items)
            Object.assign(item.style, { position: "static", width: "auto", marginBottom: "4px" });
    }

    // A text comes from below, rests in the middle of the box (at the top, if it is too tall for that) and leaves
    // upwards, followed by the next. So two are on their way at most; the others wait below the lower edge. Gives
    // the function that starts the movement.
    function layOutToMove(box, frame, items, travel, rest) {
        let nCurrent = 0;
        let offset = 0;
        let wait = rest;

        const next = () => items[(nCurrent + 1) % items.length];
        const park = (item) => { item.style.top = `${frame.clientHeight}px`; };
        const restingPlace = (item) => Math.max(0, (frame.clientHeight - item.offsetHeight) / 2);

        // How far the current text travels until the next one rests: the whole of it has been in the box by then.
        // A single text follows itself, and has to be gone before it comes again.
        function way() {
            const height = items[nCurrent].offsetHeight;
            return items.length === 1 ? frame.clientHeight + height : Math.max(frame.clientHeight, height);
        }

        function place() {
            const item = items[nCurrent];
            const top = restingPlace(item) - offset;
            item.style.top = `${top}px`;
            if (next() !== item || top <= -item.offsetHeight)
                next().style.top = `${restingPlace(next()) + way() - offset}px`;
        }

        function bringToRest(index) {
            park(items[nCurrent]);
            park(next());
            nCurrent = index;
            offset = 0;
            wait = rest;
            place();
        }

        function advance(elapsed) {
            const waited = Math.min(wait, elapsed);
            wait -= waited;
            offset += ((elapsed - waited) * frame.clientHeight) / travel;
            if (offset >= way())
                bringToRest((nCurrent + 1) % items.length);
            else
                place();
        }

        // A link that is reached by the keyboard comes into view, and the browser scrolls nothing in its stead.
        function followFocus({ target }) {
            const index = items.findIndex((item) => item.contains(target));
            if (index >= 0 && target.matches(":focus-visible"))
                bringToRest(index);
        }

        Object.assign(box.style, { overflow: "hidden" });
        Object.assign(frame.style, { overflow: "clip", clip: "auto" });
        for (const item of items) {
            Object.assign(item.style, { position: "absolute", width: "100%" });
            park(item);
        }
        place();
        box.addEventListener("focusin", followFocus);
        return () => brndfn.pausable(box, brndfn.frames(box, advance));
    }

    function prepare(box) {
        const frame = box.firstElementChild;
        if (prepared.has(box) || !frame)
            return;
        prepared.add(box);
        const table = box.closest("table");
        if (table)
            repairTable(table);
        const items = makeItems(frame, [...(window.brndfnmessages ?? [])]);
        Object.assign(box.style, { display: "block", margin: "auto" });
        frame.setAttribute("role", "list");
        showFocus(box);
        if (items.length === 0)
            return;
        if (brndfn.calm())
            layOutAsList(box, frame, items);
        else
            starters.push(layOutToMove(box, frame, items,
                Math.max(LEAST_TRAVEL, milliseconds(window.brndfnspeednormal, USUAL_TRAVEL)),
                milliseconds(window.brndfnspeedmore, USUAL_REST)));
    }

    window.startscroll = () => {
        for (const start of starters.splice(0))
            start();
    };

    // A second box on the page overwrites the variables of the first, and the texts lie on top of each other until
    // they are laid out: so each box is taken in hand as soon as the parser has made it.
    const prepareAll = () => document.querySelectorAll(BOX).forEach(prepare);
    const parser = new MutationObserver(prepareAll);
    parser.observe(document, { childList: true, subtree: true });
    brndfn.ready(() => {
        prepareAll();
        parser.disconnect();
    });
})();
