// Slide Text: types the text of span#typing into its cell, character by character. The page's own script would do that
// where document.all is, for one text on a page; it is read for its speed here, and each text types its own.
//
// The whole text stands in the page from the start, for screen readers and so that nothing moves as it grows: what
// isn't typed yet is only not seen. Typing waits while the pointer is over the text and can be stopped; a click on the
// text or Escape shows all of it, and so does a visitor's wish for calm.
(function () {
    "use strict";

    const { brndfn } = window;
    if (brndfn.slideText)
        return;

    const SPEED = /setTimeout\("typeit\(\)",\s*([\d.]+)/;
    const FASTEST = 1;

    // As the browser would show it: only a <br> breaks a line.
    function textOf(span) {
        const copy = span.cloneNode(true);
        copy.innerHTML = copy.innerHTML.replace(/\s+/g, " ").replace(/ ?<br\b[^>]*> ?/gi, "\n");
        return copy.textContent.trim();
    }

    // In a narrow page the cells keep their proportion.
    function fit(table) {
        const cells = [...table.querySelectorAll("td")];
        const total = cells.reduce((sum, { width }) => sum + Number(width), 0);
        for (const cell of cells)
            Object.assign(cell.style,
                { width: `min(${cell.width}px, ${(85 * cell.width) / total}vw)`, overflowWrap: "anywhere" });
    }

    function type(cell, span, nMilliseconds) {
        const characters = Array.from(textOf(span));
        const [typed, rest] = [document.createElement("span"), document.createElement("span")];
        let n = 0;

        function show() {
            typed.textContent = characters.slice(0, n).join("");
            rest.textContent = characters.slice(n).join("");
        }
        function showAll() {
            span.textContent = characters.join("");
            steps.stop();
        }
        function step() {
            n++;
            if (n < characters.length)
                show();
            else
                showAll();
        }

        cell.style.position = "relative";
        span.style.whiteSpace = "pre-line";
        rest.style.opacity = 0;
        span.replaceChildren(typed, rest);
        show();
        const steps = brndfn.every(cell, nMilliseconds, step);
        const { signal } = steps;
        brndfn.pausable(span, steps);
        cell.append(brndfn.stop(steps, "corner").element);
        span.addEventListener("click", showAll, { signal });
        document.addEventListener("keydown", (event) => event.key === "Escape" && showAll(), { signal });
        brndfn.onPrint((bPrinting) => (rest.style.opacity = bPrinting ? 1 : 0), signal);
        brndfn.onCalm((bCalm) => bCalm && showAll(), signal);
    }

    brndfn.slideText = () => {
        for (const span of document.querySelectorAll("#typing")) {
            const cell = span.closest("td");
            const [, speed] = SPEED.exec(cell?.querySelector("script")?.text) ?? [];
            if (speed === undefined)
                continue;
            const table = cell.closest("table");
            brndfn.repair(table);
            brndfn.pinTable(table);
            fit(table);
            type(cell, span, Math.max(FASTEST, Number(speed)));
        }
    };
    brndfn.ready(brndfn.slideText);
})();
