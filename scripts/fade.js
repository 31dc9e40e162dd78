// The fading of Fade Select Box; the page loads it behind fadeselect.js.
//
//     brndfn.fade(element, opacity, steps, milliseconds, done);
//
// takes the element to that opacity (0 or 1) in equal steps with so many milliseconds between two of them, and then
// calls done. A fade that is under way turns round where it is. For a visitor who asked for reduced motion, with no
// steps, and where nobody looks, the element is there, or gone, at once.
(() => {
    "use strict";

    const brndfn = window.brndfn;
    const running = new WeakMap();

    brndfn.fade = (element, opacity, steps, milliseconds, done = () => {}) => {
        clearInterval(running.get(element));
        const from = Number(getComputedStyle(element).opacity);
        const nSteps = brndfn.calm() ? 0 : Math.round(Math.abs(opacity - from) * steps);
        let nDone = 0;

        function step() {
            nDone++;
            const bLast = !(nDone < nSteps) || document.hidden;
            element.style.opacity = bLast ? opacity : from + ((opacity - from) * nDone) / nSteps;
            if (!bLast)
                return;
            clearInterval(running.get(element));
            running.delete(element);
            done();
        }
        if (nSteps > 0)
            running.set(element, setInterval(step, milliseconds));
        else
            step();
    };
})();
