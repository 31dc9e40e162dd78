// ToolTip: an element's own box of HTML, shown at the pointer when the mouse rests on the element.
//
// The page's text gives, for an element whose id is TITLE:
//     tooltip="…"         the HTML of the tip: text and image, in a <marquee> if they are to move or in a <span>
//     tooltipstyle="…"    CSS of the box, with bare widths and colours without "#"
//     TITLEdelayTime      variable: milliseconds from the pointer's coming until the tip shows
//     TITLEshowTime       variable: milliseconds until it goes again, 0 for no limit
// and calls nothing: this file finds the elements, those that come later too. A tip shows on keyboard focus too,
// stays while the pointer is on it, and goes when pointer or focus leave and on Escape.
(() => {
    "use strict";

    if (window.brndfntooltips)
        return;
    window.brndfntooltips = true;

    const TIPPED = "[tooltip][tooltipstyle]";
    const USUAL_DELAY = 700;
    const USUAL_SHOW = 5000;
    const LONGEST_TIMER = 2 ** 31 - 1;
    // What the pointer may take for the way from the element to its tip.
    const GRACE = 250;
    const EDGE = 4;

    // A moving text stands long enough to be noticed, leaves to the left and comes back from the right.
    const STAND = 800;
    const PIXELS_PER_MILLISECOND = 0.06;

    // What the author's style may change, and what it may not.
    const LOOK =
        "padding:2px 6px; background:#ffffe1; color:#000; border:1px solid #000; font:16px sans-serif;" +
        "text-align:left; box-shadow:0 2px 6px rgb(0 0 0 / 30%);";
    const PLACE =
        "position:fixed; left:0; top:0; margin:0; z-index:2147483647; display:none; box-sizing:border-box;" +
        "width:max-content; max-width:calc(100vw - 8px); max-height:calc(100vh - 8px); overflow:auto;";

    // Element to its tip: {element, box, strips}.
    const tips = new Map();
    let nTips = 0;

    // The tip where the pointer or the focus is: {tip, bFocus, x, y, at, timer, movement}, at being "element",
    // "tip" or "away". It stays the active one when its time is over and after Escape: so it doesn't show again
    // before pointer or focus have left.
    let active = null;

    // A <marquee> moves whatever the visitor asked for and begins with nothing to read. Its content goes into a
    // strip in a window of the same size and style, which this file moves. Gives the strip.
    function replaceMarquee(marquee) {
        const frame = marquee.ownerDocument.createElement("span");
        const strip = marquee.ownerDocument.createElement("span");
        frame.setAttribute("style", marquee.getAttribute("style") ?? "");
        Object.assign(frame.style, { display: "inline-block", maxWidth: "100%", verticalAlign: "top" });
        Object.assign(frame.style, brndfn.calm() ? { minWidth: "min-content" } : { overflow: "hidden" });
        Object.assign(strip.style, { display: "inline-block", whiteSpace: brndfn.calm() ? "normal" : "nowrap" });
        strip.append(...marquee.childNodes);
        frame.append(strip);
        marquee.replaceWith(frame);
        return strip;
    }

    // The author's dialog gives 0 for a size that nobody chose.
    function mendImage(image) {
        for (const side of ["width", "height"])
            if (!(parseInt(image.getAttribute(side), 10) > 0))
                image.removeAttribute(side);
        image.style.verticalAlign = "middle";
        image.alt ||= "";
    }

    // The tip's HTML is parsed in a document that runs nothing, so that no marquee ever starts. A line that the
    // author wants unbroken is broken where the window is too narrow for it.
    function makeTip(element) {
        const content = document.implementation.createHTMLDocument("").createElement("div");
        content.innerHTML = element.getAttribute("tooltip");
        brndfn.repair(content);
        content.querySelectorAll("img").forEach(mendImage);
        content.querySelectorAll("nobr").forEach((line) => { line.style.whiteSpace = "normal"; });
        const strips = [...content.querySelectorAll("marquee")].map(replaceMarquee);

        const box = document.createElement("div");
        box.id = `brndfntooltip${++nTips}`;
        box.setAttribute("role", "tooltip");
        box.style.cssText = LOOK + brndfn.css(element.getAttribute("tooltipstyle")) + ";" + PLACE;
        box.append(...content.childNodes);
        document.body.append(box);
        return { element, box, strips };
    }

    // Makes the element known to mouse, keyboard and screen reader as one that has a tip.
    function describe({ element, box }) {
        const others = element.getAttribute("aria-describedby") ?? "";
        element.setAttribute("aria-describedby", `${others} ${box.id}`.trim());
        if (element.tabIndex < 0 && !element.hasAttribute("tabindex")) {
            element.tabIndex = 0;
            element.style.cursor ||= "help";
        }
    }

    // Makes tips for new elements and drops those of elements that are gone.
    function takeStock() {
        for (const [element, tip] of tips)
            if (!element.isConnected) {
                if (active?.tip === tip)
                    forget();
                tip.box.remove();
                tips.delete(element);
            }
        for (const element of document.querySelectorAll(TIPPED))
            if (!tips.has(element)) {
                tips.set(element, makeTip(element));
                describe(tips.get(element));
            }
    }

    const isShown = () => active !== null && active.tip.box.style.display !== "none";

    function setTimer(milliseconds, then) {
        clearTimeout(active.timer);
        active.timer = setTimeout(then, Math.min(milliseconds, LONGEST_TIMER));
    }

    function tipTime(word, usual) {
        const value = window[active.tip.element.id + word];
        return value >= 0 ? Number(value) : usual;
    }

    function hide() {
        clearTimeout(active.timer);
        active.movement?.stop();
        active.movement = null;
        active.tip.box.style.display = "none";
    }

    function forget() {
        if (active)
            hide();
        active = null;
    }

    function hideAfterShowTime() {
        const time = tipTime("showTime", USUAL_SHOW);
        clearTimeout(active.timer);
        if (time > 0)
            setTimer(time, hide);
    }

    // Below and to the right of the pointer, or below the focused element; on the other side where there is no
    // room, and inside the window in any case.
    function place() {
        const { tip, bFocus, x, y } = active;
        const view = window.visualViewport;
        const size = tip.box.getBoundingClientRect();
        const anchor = bFocus
            ? tip.element.getBoundingClientRect()
            : { left: x + 10, right: x - 6, top: y - 6, bottom: y + 16 };
        const fit = (wanted, flipped, length, low, room) => {
            const most = low + room - EDGE - length;
            return Math.max(low + EDGE, wanted <= most ? wanted : Math.min(flipped, most));
        };
        const left = fit(anchor.left, anchor.right - size.width, size.width, view.offsetLeft, view.width);
        const top = fit(anchor.bottom + 4, anchor.top - 4 - size.height, size.height, view.offsetTop, view.height);
        tip.box.style.left = `${left}px`;
        tip.box.style.top = `${top}px`;
    }

    function startMovement({ box, strips }) {
        let elapsed = -STAND;
        return brndfn.frames(box, (milliseconds) => {
            if (active.at === "tip")
                return;
            elapsed += milliseconds;
            const way = Math.max(0, elapsed * PIXELS_PER_MILLISECOND);
            for (const strip of strips) {
                const room = strip.parentElement.clientWidth;
                const length = strip.offsetWidth;
                const left = way < length ? -way : room - ((way - length) % (room + length));
                strip.style.transform = `translateX(${left}px)`;
            }
        });
    }

    function show() {
        const { tip } = active;
        tip.box.style.display = "block";
        place();
        if (!brndfn.calm()) {
            tip.box.animate([{ opacity: 0 }, { opacity: 1 }], 120);
            for (const strip of tip.strips)
                strip.style.transform = "";
            if (tip.strips.length > 0)
                active.movement = startMovement(tip);
        }
        hideAfterShowTime();
    }

    function arrive(element, bFocus, x = 0, y = 0) {
        forget();
        takeStock();
        active = { tip: tips.get(element), bFocus, x, y, at: "element", timer: 0, movement: null };
        setTimer(tipTime("delayTime", USUAL_DELAY), show);
    }

    // The pointer goes on to another place of the active tip. On the tip there is no time limit.
    function moveTo(at) {
        if (active.at === at)
            return;
        active.at = at;
        if (!isShown()) {
            if (at === "away")
                forget();
        } else if (at === "element") {
            hideAfterShowTime();
        } else if (at === "away") {
            setTimer(GRACE, forget);
        } else {
            clearTimeout(active.timer);
        }
    }

    document.addEventListener("pointerover", ({ target, clientX, clientY }) => {
        const element = target.closest(TIPPED);
        if (isShown() && active.tip.box.contains(target))
            moveTo("tip");
        else if (element && element !== active?.tip.element)
            arrive(element, false, clientX, clientY);
        else if (active)
            moveTo(element || active.bFocus ? "element" : "away");
    });

    // The pointer leaves the window.
    document.addEventListener("pointerout", ({ relatedTarget }) => {
        if (!relatedTarget && active && !active.bFocus)
            moveTo("away");
    });

    document.addEventListener("pointermove", ({ clientX, clientY }) => {
        if (active && !isShown())
            Object.assign(active, { x: clientX, y: clientY });
    }, { passive: true });

    document.addEventListener("focusin", ({ target }) => {
        const element = target.closest(TIPPED);
        if (element && element !== active?.tip.element && target.matches(":focus-visible"))
            arrive(element, true);
    });

    document.addEventListener("focusout", () => {
        if (active?.bFocus)
            forget();
    });

    document.addEventListener("keydown", ({ key }) => {
        if (key === "Escape" && active)
            hide();
    });

    // A tip at the pointer has lost its place when the page scrolls, one at an element goes with it.
    document.addEventListener("scroll", ({ target }) => {
        if (!isShown() || active.tip.box.contains(target))
            return;
        if (active.bFocus)
            place();
        else
            hide();
    }, { capture: true, passive: true });

    for (const [source, event] of [[window, "resize"], [document, "load"]])
        source.addEventListener(event, () => {
            if (isShown())
                place();
        }, { capture: true });

    brndfn.ready(() => {
        takeStock();
        new MutationObserver(takeStock).observe(document, { childList: true, subtree: true });
    });
})();
