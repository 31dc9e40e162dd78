// Color Link: a link that walks through its colours. The page's text takes each step itself: it looks the link up as
// document.links("brndfntext" + title), sets its colour and asks for the next step with a timer's text, such as
// setTimeout("titlelinkDance()", milliseconds). Here the steps are held while the visitor points at the link, has the
// focus on it, stopped it or wants calm.
(function () {
    "use strict";

    const { brndfn } = window;
    if (brndfn.onLinkAsked)
        return;

    const NAME = /^brndfntext(.*)/s;
    // Colours that change faster than the screen are seen by nobody.
    const FRAME = 17;

    const adopted = new WeakSet();
    // The timer's text to schedule(milliseconds). From the first link on, these texts, and only these, go there.
    const steppers = new Map();
    const nativeSetTimeout = window.setTimeout;

    function stepBy(code, schedule) {
        steppers.set(code, schedule);
        window.setTimeout = (handler, nDelay, ...given) => {
            const schedule = typeof handler === "string" ? steppers.get(handler) : undefined;
            return schedule ? schedule(nDelay) : nativeSetTimeout.call(window, handler, nDelay, ...given);
        };
    }

    // Runs what is due at once, or when the link is no longer held.
    function gate(link) {
        let due;
        function pass() {
            const fn = due;
            due = undefined;
            fn?.();
        }
        const handle = brndfn.runner(link, pass, () => {});
        handle.after = (nDelay, fn) => {
            const wait = nDelay < FRAME ? requestAnimationFrame : nativeSetTimeout;
            return wait.call(window, () => {
                due = fn;
                if (handle.running && link.isConnected)
                    pass();
            }, nDelay);
        };
        return handle;
    }

    function adopt(link, title) {
        adopted.add(link);
        brndfn.repair(link);
        brndfn.pin(link, { textUnderlineOffset: "auto", background: "none" });
        const steps = gate(link);
        const stop = brndfn.stop(steps, "line");
        link.after(stop.element);
        brndfn.pausable(link, steps);
        brndfn.onCalm((bCalm) => {
            stop.element.hidden = bCalm;
            if (bCalm)
                steps.pause("calm");
            else
                steps.resume("calm");
        }, steps.signal);
        const dance = `${title}linkDance`;
        stepBy(`${dance}()`, (nDelay) => steps.after(nDelay, () => window[dance]()));
    }

    brndfn.onLinkAsked = (link) => {
        const [, title] = NAME.exec(link?.name) ?? [];
        if (title !== undefined && !adopted.has(link))
            adopt(link, title);
    };
})();
