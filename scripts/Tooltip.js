// ToolTip: an element's own box of HTML, shown at the pointer when the mouse rests on the element.
//
// The page's text gives, for an element whose id is TITLE:
//     tooltip="…"         the HTML of the tip: text and image, in a <marquee> if they are to move or in a <span>
//     tooltipstyle="…"    CSS of the box, with bare widths and colours without "#"
//     TITLEdelayTime      variable: milliseconds from the pointer's coming until the tip shows
//     TITLEshowTime       variable: milliseconds until it goes again, 0 for no limit
// and calls nothing: this file finds the elements, those that come later too. A tip shows on keyboard focus and on a
// tap too, stays while the pointer is on it or the focus in it, and goes when they leave, on a tap elsewhere and on
// Escape. It stands behind its element, in the browser's top layer, where no part of the page covers it or cuts it off.
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

    // What the author's style may change, and what it may not. Nothing comes from the page's style sheets.
    const LOOK =
        "all:initial; padding:2px 6px; background:#ffffe1; color:#000; border:1px solid #000; font:16px sans-serif;" +
        "text-align:left; box-shadow:0 2px 6px rgb(0 0 0 / 30%);";
    const PLACE =
        "position:fixed; left:0; top:0; margin:0; display:none; box-sizing:border-box;" +
        "width:max-content; max-width:calc(100vw - 8px); max-height:calc(100vh - 8px); overflow:auto;";
    // On paper each tip stands whole behind its element.
    const STYLE = `
        @media print {
            .brndfn-tip { display: inline-block !important; position: static !important; margin: 0 4px !important;
                max-height: none !important; print-color-adjust: exact; -webkit-print-color-adjust: exact; }
            .brndfn-tip :not(img) { width: auto !important; overflow: visible !important; transform: none !important;
                white-space: normal !important; } }`;
    document.head.append(Object.assign(document.createElement("style"), { textContent: STYLE }));

    // Element to its tip: {element, box, strips, movement}.
    const tips = new Map();
    let nTips = 0;

    // The tip where the pointer, the finger or the focus is: {tip, bAtElement, x, y, at, timer}. It stands at its
    // element, or where the pointer came to it (x and y, from the element's corner); at is "element", "tip" or "away".
    // It stays the active one when its time is over and after Escape: so it doesn't show again before pointer or focus
    // have left.
    let active = null;

    // A <marquee> moves whatever the visitor asked for and begins with nothing to read. Its content goes into a
    // strip in a window of the same size and style, which this file moves. Gives the strip.
    function replaceMarquee(marquee) {
        const frame = marquee.ownerDocument.createElement("span");
        const strip = marquee.ownerDocument.createElement("span");
        frame.setAttribute("style", marquee.getAttribute("style") ?? "");
        Object.assign(frame.style, { display: "inline-block", maxWidth: "100%", verticalAlign: "top" });
        strip.style.display = "inline-block";
        strip.append(...marquee.childNodes);
        frame.append(strip);
        marquee.replaceWith(frame);
        return strip;
    }

    // The tip's HTML is parsed in a document that runs nothing, so that no marquee ever starts. A line that the
    // author wants unbroken is broken where the window is too narrow for it.
    function makeTip(element) {
        const content = document.implementation.createHTMLDocument("").createElement("div");
        content.innerHTML = element.getAttribute("tooltip");
        brndfn.repair(content);
        for (const image of content.querySelectorAll("img")) {
            Object.assign(image.style, { display: "inline", verticalAlign: "middle" });
            image.alt ||= "";
        }
        content.querySelectorAll("nobr").forEach((line) => { line.style.whiteSpace = "normal"; });
        const strips = [...content.querySelectorAll("marquee")].map(replaceMarquee);

        const box = document.createElement("div");
        box.id = `brndfntooltip${++nTips}`;
        box.className = "brndfn-tip";
        box.popover = "manual";
        box.setAttribute("role", "tooltip");
        box.style.cssText = LOOK + brndfn.css(element.getAttribute("tooltipstyle")) + ";" + PLACE;
        box.append(...content.childNodes);
        if (element.localName === "td")
            element.append(box);
        else
            element.after(box);
        return { element, box, strips, movement: undefined };
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
                tip.movement?.stop();
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
        const { box } = active.tip;
        clearTimeout(active.timer);
        if (box.contains(document.activeElement))
            active.tip.element.focus({ preventScroll: true });
        box.style.display = "none";
        if (box.matches(":popover-open"))
            box.hidePopover();
    }

    function forget() {
        if (active)
            hide();
        active = null;
    }

    // Who reads by keys or by touch takes the time that it takes.
    function hideAfterShowTime() {
        const time = tipTime("showTime", USUAL_SHOW);
        clearTimeout(active.timer);
        if (time > 0 && !active.bAtElement)
            setTimer(time, hide);
    }

    // Below and to the right of the pointer, or below the element; on the other side where there is no room, and
    // inside the window in any case. A tip whose element is scrolled out of the window is not seen.
    function place() {
        const { tip, bAtElement } = active;
        const view = window.visualViewport;
        const size = tip.box.getBoundingClientRect();
        const at = tip.element.getBoundingClientRect();
        const [x, y] = [at.left + active.x, at.top + active.y];
        const anchor = bAtElement ? at : { left: x + 10, right: x - 6, top: y - 6, bottom: y + 16 };
        const fit = (wanted, flipped, length, low, room) => {
            const most = low + room - EDGE - length;
            return Math.max(low + EDGE, wanted <= most ? wanted : Math.min(flipped, most));
        };
        const left = fit(anchor.left, anchor.right - size.width, size.width, view.offsetLeft, view.width);
        const top = fit(anchor.bottom + 4, anchor.top - 4 - size.height, size.height, view.offsetTop, view.height);
        tip.box.style.left = `${left}px`;
        tip.box.style.top = `${top}px`;
        tip.box.style.visibility = at.bottom < 0 || at.top > window.innerHeight ? "hidden" : "visible";
    }

    // Moves the strips while the tip is to be seen, with a button that stops them. For a visitor who wants calm they
    // stand, whole.
    function makeMovement({ box, strips }) {
        let elapsed = -STAND;
        const movement = brndfn.frames(box, (milliseconds) => {
            elapsed += milliseconds;
            const way = Math.max(0, elapsed * PIXELS_PER_MILLISECOND);
            for (const strip of strips) {
                const room = strip.parentElement.clientWidth;
                const length = strip.offsetWidth;
                const left = way < length ? -way : room - ((way - length) % (room + length));
                strip.style.transform = `translateX(${left}px)`;
            }
        });
        movement.begin = () => (elapsed = -STAND);
        brndfn.pausable(box, movement);
        const stop = brndfn.stop(movement, "corner").element;
        box.append(stop);
        brndfn.onCalm((bCalm) => {
            movement[bCalm ? "pause" : "resume"]("calm");
            stop.hidden = bCalm;
            box.style.paddingRight = bCalm ? "6px" : "30px";
            for (const strip of strips) {
                Object.assign(strip.style, { whiteSpace: bCalm ? "normal" : "nowrap", transform: "" });
                Object.assign(strip.parentElement.style,
                    bCalm ? { minWidth: "min-content", overflow: "" } : { minWidth: "", overflow: "hidden" });
            }
        }, movement.signal);
        return movement;
    }

    function show() {
        const { tip } = active;
        tip.box.style.display = "block";
        tip.box.showPopover();
        if (tip.strips.length > 0) {
            tip.movement ??= makeMovement(tip);
            tip.movement.begin();
        }
        place();
        if (!brndfn.calm())
            tip.box.animate([{ opacity: 0 }, { opacity: 1 }], 120);
        hideAfterShowTime();
    }

    function arrive(element, bAtElement, at = { x: 0, y: 0 }) {
        forget();
        takeStock();
        active = { tip: tips.get(element), bAtElement, ...at, at: "element", timer: 0 };
        setTimer(tipTime("delayTime", USUAL_DELAY), show);
    }

    function fromCorner(element, { clientX, clientY }) {
        const { left, top } = element.getBoundingClientRect();
        return { x: clientX - left, y: clientY - top };
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

    const isTouch = ({ pointerType }) => pointerType === "touch";

    document.addEventListener("pointerover", (event) => {
        const element = event.target.closest(TIPPED);
        if (isTouch(event))
            return;
        if (isShown() && active.tip.box.contains(event.target))
            moveTo("tip");
        else if (element && element !== active?.tip.element)
            arrive(element, false, fromCorner(element, event));
        else if (active)
            moveTo(element || active.bAtElement ? "element" : "away");
    });

    // The pointer leaves the window.
    document.addEventListener("pointerout", (event) => {
        if (!event.relatedTarget && !isTouch(event) && active && !active.bAtElement)
            moveTo("away");
    });

    document.addEventListener("pointermove", (event) => {
        if (active && !active.bAtElement && !isShown())
            Object.assign(active, fromCorner(active.tip.element, event));
    }, { passive: true });

    // The first tap on a link shows its tip, the second follows the link.
    document.addEventListener("click", (event) => {
        const element = event.target.closest(TIPPED);
        if (!isTouch(event) || !element || (isShown() && active.tip.element === element))
            return;
        if (event.target.closest("a[href]"))
            event.preventDefault();
        arrive(element, true);
        clearTimeout(active.timer);
        show();
    }, { capture: true });

    const isOfActive = (target) => active.tip.element.contains(target) || active.tip.box.contains(target);

    document.addEventListener("pointerdown", ({ target }) => {
        if (active?.bAtElement && !isOfActive(target))
            forget();
    }, { capture: true });

    document.addEventListener("focusin", ({ target }) => {
        const element = target.closest(TIPPED);
        if (element && element !== active?.tip.element && target.matches(":focus-visible"))
            arrive(element, true);
    });

    document.addEventListener("focusout", ({ relatedTarget }) => {
        if (active?.bAtElement && !isOfActive(relatedTarget))
            forget();
    });

    // Escape is for the tip, and not for the dialog around.
    document.addEventListener("keydown", (event) => {
        if (event.key === "Escape" && active) {
            if (isShown())
                event.preventDefault();
            hide();
        }
    });

    document.addEventListener("visibilitychange", () => {
        if (document.hidden)
            forget();
    });

    // The tip goes with its element; what else scrolls on the page is nothing to it.
    document.addEventListener("scroll", ({ target }) => {
        if (isShown() && target.contains(active.tip.element))
            place();
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
