// What effects ask of the page around them, to stay in its window.
//
//     brndfn.onResize(element, fn)    fn() now and when the element's size has changed
//     brndfn.rightEdge(element)       where, in the window, the element's surroundings end
(() => {
    "use strict";

    const brndfn = window.brndfn;
    if (brndfn.rightEdge)
        return;

    // fn may change the size again, so it comes a frame later.
    brndfn.onResize = (element, fn) => {
        new ResizeObserver(() => requestAnimationFrame(fn)).observe(element);
        fn();
    };

    // What lies further right than the window, or than an element around that scrolls, is reached by scrolling only.
    brndfn.rightEdge = (element) => {
        const view = document.scrollingElement ?? document.documentElement;
        const end = view.clientWidth - window.scrollX;
        for (let around = element.parentElement; around && around !== document.body; around = around.parentElement) {
            const { overflowX, paddingRight } = getComputedStyle(around);
            if (overflowX !== "visible" && around !== view) {
                const left = around.getBoundingClientRect().left + around.clientLeft;
                return Math.min(end, left + around.clientWidth - parseFloat(paddingRight));
            }
        }
        return end;
    };
})();
