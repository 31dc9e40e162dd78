// Help for the effects in browsers of today. The text of an effect was shaped for browsers that had document.all,
// let collections be called like functions and took lengths without a unit; its bytes are fixed. This script gives
// back what that text counts on, and the other scripts what they share: window.brndfn.
//
// It stands in front of every script file of an effect and may run several times on one page: the first run counts.
// Slide Text and Color Link have no script file; the page includes this script for them, before their text.
(function () {
    "use strict";

    if (window.brndfn)
        return;

    const motion = window.matchMedia("(prefers-reduced-motion: reduce)");

    // Splits text at a separator that stands outside of quotes, brackets and comments.
    function splitOutside(text, separator) {
        const pieces = [];
        let nStart = 0;
        let nDepth = 0;
        let quote = "";
        for (let i = 0; i < text.length; i++) {
            const c = text[i];
            if (c === "\\") {
                i++;
            } else if (quote !== "") {
                quote = c === quote ? "" : quote;
            } else if (c === '"' || c === "'") {
                quote = c;
            } else if (c === "/" && text[i + 1] === "*") {
                const nEnd = text.indexOf("*/", i + 2);
                i = nEnd < 0 ? text.length : nEnd + 1;
            } else if (c === "(") {
                nDepth++;
            } else if (c === ")") {
                nDepth = Math.max(0, nDepth - 1);
            } else if (c === separator && nDepth === 0) {
                pieces.push(text.slice(nStart, i));
                nStart = i + 1;
            }
        }
        pieces.push(text.slice(nStart));
        return pieces;
    }

    // A word that is a bare number or three or six hexadecimal digits; quoted texts and addresses are passed over.
    const bareWord =
        /"[^"]*"|'[^']*'|url\([^)]*\)|(?<![\w#%.+-])([+-]?(?:\d+\.?\d*|\.\d+)|[0-9a-f]{6}|[0-9a-f]{3})(?![\w%.-])/gi;

    // The value with a unit on its numbers and "#" on its colours. Three plain digits may be either: the first
    // nLengths of them are taken as lengths.
    function withUnits(value, nLengths) {
        let nSeen = 0;
        return value.replace(bareWord, (whole, word) => {
            if (word === undefined)
                return whole;
            if (/^[0-9a-f]{6}$/i.test(word) || /[a-f]/i.test(word))
                return `#${word}`;
            if (/^\d{3}$/.test(word) && nSeen++ >= nLengths)
                return `#${word}`;
            return Number(word) === 0 ? word : `${word}px`;
        });
    }

    // Font names with a word that is no identifier, such as "@Fixedsys", in quotes.
    function withQuotedFonts(value) {
        const identifier = /^-?[a-z_\u0080-\uffff][\w\u0080-\uffff-]*$/i;
        const needsQuotes = (name) => name.split(/\s+/).some((word) => word !== "" && !identifier.test(word));
        return splitOutside(value, ",")
            .map((name) => (needsQuotes(name) && !/["']/.test(name) ? `"${name.trim()}"` : name))
            .join(",");
    }

    // What a value may have meant, the likeliest first. Black as a background, "000000", would pass for a position.
    function* meanings(property, value) {
        if (property === "background")
            yield withUnits(value, 0);
        yield value;
        if (property === "font-family")
            yield withQuotedFonts(value);
        if (property === "cursor")
            yield value.replace(/\bhand\b/i, "pointer");
        const nAmbiguous = (value.match(/(?<![\w#%.+-])\d{3}(?![\w%.-])/g) ?? []).length;
        for (let nLengths = nAmbiguous; nLengths >= 0; nLengths--)
            yield withUnits(value, nLengths);
    }

    function repairDeclaration(declaration) {
        const [head, property] = /^(?:\s|\/\*.*?\*\/)*([-\w]+)\s*:\s*/s.exec(declaration) ?? [];
        if (!head)
            return declaration;
        const value = declaration.slice(head.length).trimEnd().replace(/\s*!\s*important$/i, "");
        const rest = declaration.slice(head.length + value.length);
        for (const meaning of meanings(property.toLowerCase(), value)) {
            if (CSS.supports(property, meaning))
                return head + meaning + rest;
        }
        return declaration;
    }

    // Declarations ("a:b; c:d") with those repaired that the browser would drop. What it understands, and what is
    // beyond repair, stays as it is.
    function css(text) {
        return splitOutside(text, ";").map(repairDeclaration).join(";");
    }

    function repairSheet(style) {
        const repaired = style.textContent.replace(/\{[^{}]*\}/g, (block) => `{${css(block.slice(1, -1))}}`);
        if (repaired !== style.textContent)
            style.textContent = repaired;
    }

    // Repairs the style attributes and the <style> elements of an effect's markup. The attribute holds dropped
    // declarations only until a script sets one of the element's styles, so this has to come first.
    function repair(element) {
        for (const styled of [element, ...element.querySelectorAll("[style]")]) {
            const raw = styled.getAttribute("style");
            const repaired = raw && css(raw);
            if (repaired && repaired !== raw)
                styled.setAttribute("style", repaired);
        }
        for (const style of element.querySelectorAll("style"))
            repairSheet(style);
        if (element.localName === "style")
            repairSheet(element);
    }

    function ready(fn) {
        if (document.readyState === "loading")
            document.addEventListener("DOMContentLoaded", () => fn(), { once: true });
        else
            fn();
    }

    function calm() {
        return motion.matches;
    }

    // Lets something run while the page is visible and nobody holds it: begin() and end() switch it. Each of
    // those who hold it (pause) has a key of its own, so that the pointer's leaving doesn't undo a visitor's click.
    function runner(begin, end) {
        const holders = new Set();
        const listening = new AbortController();
        let bRunning = false;

        function update() {
            const bRun = holders.size === 0 && !document.hidden && !listening.signal.aborted;
            if (bRun === bRunning)
                return;
            bRunning = bRun;
            if (bRun)
                begin();
            else
                end();
        }
        document.addEventListener("visibilitychange", update, { signal: listening.signal });
        // The caller gets its handle before the first call.
        queueMicrotask(update);
        return {
            pause(holder = "caller") {
                holders.add(holder);
                update();
            },
            resume(holder = "caller") {
                holders.delete(holder);
                update();
            },
            stop() {
                listening.abort();
                update();
            },
            get running() {
                return bRunning;
            },
            // Aborted by stop(): for listeners that end with the handle.
            signal: listening.signal,
        };
    }

    // fn(milliseconds since the last frame), with each frame until the element leaves the page.
    function frames(element, fn) {
        let nRequest = 0;
        let nLast;
        function frame(nNow) {
            if (!element.isConnected)
                return handle.stop();
            nRequest = requestAnimationFrame(frame);
            const nElapsed = nLast === undefined ? 0 : nNow - nLast;
            nLast = nNow;
            fn(nElapsed);
        }
        const handle = runner(
            () => {
                nLast = undefined;
                nRequest = requestAnimationFrame(frame);
            },
            () => cancelAnimationFrame(nRequest),
        );
        return handle;
    }

    // fn(), again and again until the element leaves the page.
    function every(element, nMilliseconds, fn) {
        let nTimer = 0;
        const handle = runner(
            () => {
                nTimer = setInterval(() => (element.isConnected ? fn() : handle.stop()), nMilliseconds);
            },
            () => clearInterval(nTimer),
        );
        return handle;
    }

    function pausable(element, handle) {
        const byPointer = {};
        const byFocus = {};
        const { signal } = handle;
        element.addEventListener("pointerenter", () => handle.pause(byPointer), { signal });
        element.addEventListener("pointerleave", () => handle.resume(byPointer), { signal });
        element.addEventListener("focusin", () => handle.pause(byFocus), { signal });
        element.addEventListener("focusout", () => handle.resume(byFocus), { signal });
    }

    // The live collection as a function: truthy, and callable as call(native, …) says.
    function callable(native, call, own = {}) {
        const forwarded = {
            apply: (target, self, given) => call(...given),
            get(target, key) {
                const value = Object.hasOwn(own, key) ? own[key] : native[key];
                return typeof value === "function" ? value.bind(native) : value;
            },
        };
        for (const trap of ["has", "ownKeys", "getOwnPropertyDescriptor", "getPrototypeOf"])
            forwarded[trap] = (target, ...rest) => Reflect[trap](native, ...rest);
        return new Proxy(() => {}, forwarded);
    }

    function replaceCollection(name, call, own) {
        const collection = callable(document[name], call, own);
        Object.defineProperty(document, name, { configurable: true, enumerable: true, get: () => collection });
    }

    const nativeAll = document.all;
    const nativeLinks = document.links;

    replaceCollection("all", (...given) => nativeAll(...given), {
        tags: (name) => document.getElementsByTagName(name),
    });
    replaceCollection("links", (key) => {
        const link = typeof key === "number" ? nativeLinks.item(key) : nativeLinks.namedItem(key);
        if (link?.name?.startsWith("brndfntext"))
            adoptColorLink(link);
        return link;
    });

    // All handlers that were assigned, in order: the page's own, from <body onload> too, and those of effects.
    // Page scripts that save the old handler and call it from theirs get a function for those of that time. None
    // runs twice in one load or one such call, however they call each other.
    const loadHandlers = [];
    const savedChains = new WeakSet();
    const nativeOnload = Object.getOwnPropertyDescriptor(window, "onload");
    let chain = null; // for the handlers of now
    let handlersDone = null; // while a call is under way

    function addHandler(handler) {
        loadHandlers.push(handler);
        chain = null;
    }

    function adoptNativeHandler() {
        const handler = nativeOnload.get.call(window);
        if (handler) {
            nativeOnload.set.call(window, null);
            addHandler(handler);
        }
    }

    function runOnce(handlers, given) {
        for (const handler of handlers) {
            if (handlersDone.has(handler))
                continue;
            handlersDone.add(handler);
            try {
                handler.apply(window, given);
            } catch (error) {
                reportError(error);
            }
        }
    }

    function runAll(handlers, given) {
        const before = handlersDone;
        handlersDone ??= new Set();
        runOnce(handlers, given);
        handlersDone = before;
    }

    function saveChain() {
        const handlers = [...loadHandlers];
        const saved = (...given) => runAll(handlers, given);
        savedChains.add(saved);
        return saved;
    }

    const onload = {
        configurable: true,
        enumerable: true,
        get() {
            adoptNativeHandler();
            return loadHandlers.length > 0 ? (chain ??= saveChain()) : null;
        },
        set(handler) {
            adoptNativeHandler();
            if (typeof handler !== "function")
                loadHandlers.length = 0;
            else if (!savedChains.has(handler) && !loadHandlers.includes(handler))
                addHandler(handler);
        },
    };
    adoptNativeHandler();
    Object.defineProperty(window, "onload", onload);
    Object.defineProperty(HTMLBodyElement.prototype, "onload", onload);
    window.addEventListener("load", (event) => {
        adoptNativeHandler();
        runAll(loadHandlers, [event]);
    });

    // The steps of these two effects are timers with a text, such as "typeit()". From the first such effect on, these
    // texts, and only these, go to whoever steps the effect: steppers maps the text to schedule(milliseconds).
    const steppers = new Map();
    const nativeSetTimeout = window.setTimeout;

    function stepBy(code, schedule) {
        steppers.set(code, schedule);
        window.setTimeout = (handler, nDelay, ...given) => {
            const schedule = typeof handler === "string" ? steppers.get(handler) : undefined;
            return schedule ? schedule(nDelay) : nativeSetTimeout.call(window, handler, nDelay, ...given);
        };
    }

    // Runs what is due at once, or when the gate is no longer held and the page is visible; nothing any more when
    // the element has left the page.
    function gate(element) {
        let due;
        function pass() {
            const fn = due;
            due = undefined;
            fn?.();
        }
        const handle = runner(pass, () => {});
        handle.after = (nDelay, fn) =>
            nativeSetTimeout.call(window, () => {
                due = fn;
                if (!element.isConnected)
                    handle.stop();
                else if (handle.running)
                    pass();
            }, nDelay);
        return handle;
    }

    // Color Link: its link keeps its colour while the visitor points at it, has focus on it or wants calm.
    const adoptedLinks = new WeakSet();

    function adoptColorLink(link) {
        if (adoptedLinks.has(link))
            return;
        adoptedLinks.add(link);
        repair(link);
        const steps = gate(link);
        const holdForCalm = () => (calm() ? steps.pause(motion) : steps.resume(motion));
        holdForCalm();
        motion.addEventListener("change", holdForCalm, { signal: steps.signal });
        pausable(link, steps);
        const dance = `${link.name.slice("brndfntext".length)}linkDance`;
        stepBy(`${dance}()`, (nDelay) => steps.after(nDelay, () => window[dance]()));
    }

    // Slide Text: its typing waits while the pointer is over the text; a click on it or Escape shows the whole
    // text, and so does a visitor's wish for calm. While it types, screen readers are told the whole text.
    function adoptSlideText() {
        const typing = document.getElementById("typing");
        const cell = typing?.closest("td");
        if (!cell?.querySelector("script")?.text.includes("typeit()"))
            return;
        repair(cell.parentElement);

        const steps = gate(cell);
        let bTyping = false;
        let bStepDue = false;

        function begin() {
            bTyping = true;
            typing.style.whiteSpace = "pre-line";
            typing.setAttribute("role", "img");
            typing.setAttribute("aria-label", window.mytext);
            pausable(cell, steps);
            const { signal } = steps;
            cell.addEventListener("click", showAll, { signal });
            document.addEventListener("keydown", (event) => event.key === "Escape" && showAll(), { signal });
        }
        function end() {
            steps.stop();
            steppers.delete("typeit()");
            typing.removeAttribute("role");
            typing.removeAttribute("aria-label");
        }
        function showAll() {
            typing.textContent = window.mytext;
            end();
        }
        function step() {
            bStepDue = false;
            window.typeit();
            typing.normalize();
            if (!bStepDue)
                end();
        }
        stepBy("typeit()", (nDelay) => {
            if (!bTyping)
                begin();
            if (calm()) {
                showAll();
            } else if (/[\ud800-\udbff]/.test(window.mytext[window.it - 1])) {
                // Half a character shows nothing: the other half comes with it, into the same text node.
                step();
            } else {
                bStepDue = true;
                return steps.after(nDelay, () => steps.signal.aborted || step());
            }
            return 0;
        });
    }
    ready(adoptSlideText);

    window.brndfn = { css, repair, ready, calm, frames, every, pausable };
})();
