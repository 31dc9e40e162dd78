// What the effects that move by themselves share. All of it rests while the page is in the background and while the
// effect is out of view, and ends when the element has left the page.
//
//     brndfn.calm()                       the visitor asks for reduced motion
//     brndfn.onCalm(fn, signal)           fn(calm) now and whenever that changes
//     brndfn.onPrint(fn, signal)          fn(true) before the page is printed, fn(false) after it
//     brndfn.runner(element, begin, end)  begin() and end() as it may run and must rest; the handles that it gives:
//     brndfn.frames(element, fn)          fn(milliseconds since the last frame) with each frame
//     brndfn.every(element, milliseconds, fn)
//     brndfn.pausable(element, handle)    rests under the pointer and with the focus in it
//     brndfn.stop(handle, place)          a button that stops it for good
(function () {
    "use strict";

    const { brndfn } = window;
    if (brndfn.runner)
        return;

    const motion = window.matchMedia("(prefers-reduced-motion: reduce)");

    brndfn.calm = () => motion.matches;

    brndfn.onCalm = (fn, signal) => {
        motion.addEventListener("change", () => fn(motion.matches), { signal });
        fn(motion.matches);
    };

    brndfn.onPrint = (fn, signal) => {
        window.addEventListener("beforeprint", () => fn(true), { signal });
        window.addEventListener("afterprint", () => fn(false), { signal });
    };

    // Each of those who hold it (pause) has a key of its own, so that the pointer's leaving doesn't undo a visitor's
    // click.
    brndfn.runner = (element, begin, end) => {
        const holders = new Set();
        const ending = new AbortController();
        let bInView = element.checkVisibility();
        let bRunning = false;

        function update() {
            const bRun = holders.size === 0 && bInView && !document.hidden && !ending.signal.aborted;
            if (bRun === bRunning)
                return;
            bRunning = bRun;
            if (bRun)
                begin();
            else
                end();
        }
        const view = new IntersectionObserver((entries) => {
            bInView = entries.at(-1).isIntersecting;
            if (element.isConnected)
                update();
            else
                handle.stop();
        });
        const handle = {
            pause(holder = "caller") {
                holders.add(holder);
                update();
            },
            resume(holder = "caller") {
                holders.delete(holder);
                update();
            },
            stop() {
                view.disconnect();
                ending.abort();
                update();
            },
            get running() {
                return bRunning;
            },
            // Aborted by stop(): for listeners that end with the handle.
            signal: ending.signal,
        };
        view.observe(element);
        document.addEventListener("visibilitychange", update, { signal: ending.signal });
        // The caller gets its handle before the first call.
        queueMicrotask(update);
        return handle;
    };

    brndfn.frames = (element, fn) => {
        let nRequest = 0;
        let nLast;
        function frame(nNow) {
            nRequest = requestAnimationFrame(frame);
            const nElapsed = nLast === undefined ? 0 : nNow - nLast;
            nLast = nNow;
            fn(nElapsed);
        }
        function begin() {
            nLast = undefined;
            nRequest = requestAnimationFrame(frame);
        }
        return brndfn.runner(element, begin, () => cancelAnimationFrame(nRequest));
    };

    brndfn.every = (element, nMilliseconds, fn) => {
        let nTimer = 0;
        return brndfn.runner(element,
            () => { nTimer = setInterval(fn, nMilliseconds); },
            () => clearInterval(nTimer));
    };

    brndfn.pausable = (element, handle) => {
        const byPointer = {};
        const byFocus = {};
        const { signal } = handle;
        element.addEventListener("pointerenter", () => handle.pause(byPointer), { signal });
        element.addEventListener("pointerleave", () => handle.resume(byPointer), { signal });
        element.addEventListener("focusin", () => handle.pause(byFocus), { signal });
        element.addEventListener("focusout", () => handle.resume(byFocus), { signal });
    };

    const BARS = "M6 5h2v8h-2zM10 5h2v8h-2z";
    const TRIANGLE = "M7 5l6 4l-6 4z";

    // Important, so that no rule of the page's is stronger. A finger needs 24 pixels.
    const look = new CSSStyleSheet();
    look.replaceSync(`
        :host { all: initial !important; display: inline-block !important; vertical-align: middle !important }
        :host([place=corner]) { position: absolute !important; right: 0 !important; bottom: 0 !important }
        :host([hidden]) { display: none !important }
        button { all: unset; display: grid; place-items: center; width: 24px; height: 24px; cursor: pointer }
        svg { width: 18px; height: 18px; fill: #333; stroke: none }
        circle { fill: #fff; stroke: #767676 }
        button:hover circle { fill: #dfe8f2; stroke: #333 }
        button:focus-visible { border-radius: 50%; outline: 2px solid #0b5cad; outline-offset: -2px }
        @media print { :host { display: none !important } }`);
    const DRAWING = '<svg viewBox="0 0 18 18" aria-hidden="true"><circle cx="9" cy="9" r="8.5"/><path/></svg>';

    // A button that stops what moves until the visitor lets it go on, for whoever has pause(holder), resume(holder)
    // and perhaps a signal. It says what it does and whether it did. Gives {element, toggle}; the caller puts the
    // element where it belongs: place is "corner", of the next positioned box around, or "line", among the text.
    // It stands in a shadow tree, so that no rule of the page's reaches it and none of ours reaches the page.
    brndfn.stop = (handle, place) => {
        const element = document.createElement("brndfn-stop");
        element.setAttribute("place", place);
        element.lang = brndfn.ownLanguage();
        const shadow = element.attachShadow({ mode: "open" });
        shadow.adoptedStyleSheets = [look];
        shadow.innerHTML = `<button type="button">${DRAWING}</button>`;
        const [button, path] = shadow.querySelectorAll("button, path");
        button.ariaLabel = brndfn.say("Stop the movement");
        let bStopped = false;

        function show() {
            button.ariaPressed = bStopped;
            path.setAttribute("d", bStopped ? TRIANGLE : BARS);
        }
        function toggle() {
            bStopped = !bStopped;
            if (bStopped)
                handle.pause("visitor");
            else
                handle.resume("visitor");
            show();
        }
        // What the click means to the effect around isn't meant here.
        element.addEventListener("click", (event) => {
            event.stopPropagation();
            toggle();
        });
        handle.signal?.addEventListener("abort", () => element.remove());
        show();
        return { element, toggle };
    };
})();
