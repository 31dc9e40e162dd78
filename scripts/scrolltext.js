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

    // What starts the boxes that are ready to move; emptied by startscroll.
    const starters = [];
    const prepared = new WeakSet();

    const milliseconds = (value, usual) => (value >= 0 ? Number(value) : usual);

    // The text writes a font list as one quoted name, the old word for the pointing hand and a misspelt decoration.
    function repairStyles(text) {
        return text
            .replace(/font-family:\s*"([^"]*)"/g, (_, list) =>
                `font-family:${list.split(",").map((name) => `"${name.trim()}"`).join(",")}`)
            .replace(/cursor:\s*hand\b/g, "cursor:pointer")
            .replace(/lineth-rough/g, "line-through")
            .replace(/\.brn(over|out|click)\b/g, `${BOX} $&`); // stronger than the page's rules for its links
    }

    function repairTable(table) {
        table.setAttribute("role", "presentation");
        for (const layer of table.querySelectorAll("ilayer"))
            layer.hidden = true;
        for (const style of table.querySelectorAll("style"))
            style.textContent = repairStyles(style.textContent);
        brndfn.repair(table);
        brndfn.pinTable(table);
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
            Object.assign(item.style, { padding: "1px 4px", boxSizing: "border-box", overflowWrap: "anywhere" });
            item.setAttribute("role", "listitem");
            return item;
        });
        for (const surplus of written.slice(texts.length))
            surplus.remove();
        return items.filter((item) => {
            const bShows = item.textContent.trim() !== "" || item.querySelector("img") !== null;
            if (bShows)
                Object.assign(item.firstElementChild?.style ?? {},
                    { display: "block", width: "fit-content", textUnderlineOffset: "auto", backgroundColor: "transparent" });
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

    // Without movement: all texts below each other, to be scrolled by hand, or all at once on paper.
    function layOutAsList(box, frame, items, height) {
        Object.assign(box.style, { overflow: "hidden auto", height });
        Object.assign(frame.style, { position: "static", height: "auto", clip: "auto", overflow: "visible" });
        for (const item of items)
            Object.assign(item.style, { position: "static", width: "auto", marginBottom: "4px" });
    }

    // Ready to move: the texts wait below the lower edge, all but the first.
    function layOutToMove(box, frame, items, height) {
        Object.assign(box.style, { overflow: "hidden", height });
        Object.assign(frame.style, { position: "absolute", height: "100%", clip: "auto", overflow: "clip" });
        for (const [i, item] of items.entries())
            Object.assign(item.style, { position: "absolute", width: "100%", margin: "0", top: i === 0 ? "0" : "100%" });
    }

    // A text comes from below, rests in the middle of the box (at the top, if it is too tall for that) and leaves
    // upwards, followed by the next. So two are on their way at most. The browser does the moving: a script's work
    // comes only once for each text.
    function mover(frame, items, travel, rest) {
        let nCurrent = 0;
        let animations = [];

        const restingPlace = (item) => Math.max(0, (frame.clientHeight - item.offsetHeight) / 2);

        // How far the current text travels until the next one rests: the whole of it has been in the box by then.
        // A single text follows itself, and has to be gone before it comes again.
        function move() {
            const [current, next] = [items[nCurrent], items[(nCurrent + 1) % items.length]];
            const height = frame.clientHeight;
            const way = current === next ? height + current.offsetHeight : Math.max(height, current.offsetHeight);
            const timing = { delay: rest, duration: (way * travel) / height, fill: "both" };
            const at = (top, offset) => ({ transform: `translateY(${top}px)`, offset });
            const slide = (item, from, ...through) => {
                item.style.top = "0";
                return item.animate([at(from), ...through], timing);
            };
            const [here, there] = [restingPlace(current), restingPlace(next)];
            if (current === next) {
                const gone = (here + current.offsetHeight) / way;
                animations = [slide(current, here, at(-current.offsetHeight, gone), at(height, gone), at(here))];
            } else {
                animations = [slide(current, here, at(here - way)), slide(next, there + way, at(there))];
            }
            animations[0].onfinish = () => bringToRest((nCurrent + 1) % items.length);
        }

        function bringToRest(index) {
            reset();
            nCurrent = index;
            move();
        }

        function reset() {
            for (const animation of animations)
                animation.cancel();
            animations = [];
            for (const item of items)
                item.style.top = "100%";
        }

        return {
            reset,
            bringToRest,
            begin() {
                if (animations.length === 0)
                    move();
                else
                    animations.forEach((animation) => animation.play());
            },
            end() {
                animations.forEach((animation) => animation.pause());
            },
        };
    }

    // Gives the function that starts the movement.
    function setUp(box, frame, items, travel, rest) {
        const { height } = box.style;
        const movement = mover(frame, items, travel, rest);
        const handle = brndfn.runner(box, movement.begin, movement.end);
        const stop = brndfn.stop(handle, "corner");
        let bPrinting = false;

        function layOut() {
            const bList = bPrinting || brndfn.calm();
            stop.element.hidden = bList;
            if (bList) {
                handle.pause("list");
                movement.reset();
                layOutAsList(box, frame, items, bPrinting ? "auto" : height);
            } else {
                layOutToMove(box, frame, items, height);
                handle.resume("list");
            }
        }

        handle.pause("start");
        box.append(stop.element);
        brndfn.pausable(frame, handle);
        // A link that is reached by the keyboard comes into view, and the browser scrolls nothing in its stead.
        frame.addEventListener("focusin", ({ target }) => {
            const index = items.findIndex((item) => item.contains(target));
            if (!stop.element.hidden && index >= 0 && target.matches(":focus-visible")) {
                movement.bringToRest(index);
                movement.end();
            }
        });
        brndfn.onCalm(layOut, handle.signal);
        brndfn.onPrint((bNow) => {
            bPrinting = bNow;
            layOut();
        }, handle.signal);
        return () => handle.resume("start");
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
        Object.assign(box.style, { display: "block", margin: "auto", maxWidth: "calc(100vw - 40px)" });
        frame.style.width = "100%";
        frame.setAttribute("role", "list");
        showFocus(box);
        if (items.length > 0)
            starters.push(setUp(box, frame, items,
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
