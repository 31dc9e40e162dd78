// Animate Text: shows texts one after the other, for ever. Each rises from below to the top of its box while its
// colour goes from the fade colour to the text colour, stays, and fades away again.
//
// The page's text sets these variables before it includes this file, and the box comes after it:
//     brndfnanimatemessage        the texts, each a piece of HTML; missing or empty: nothing happens
//     brndfnscrollsize            pixels of one step up; 0: the text stands at the top at once
//     brndfnanimatetextinterval   "Text Pop up Interval Time": milliseconds that one step up takes
//     brndfnanimatelayinterval    "Circulate Interval Time": how long a text stays, in tenths of a second
//     brndfnanimatebgcolor        the fade colour
//     brndfnanimatecolor          the text colour
//     #brndfntextanim             the element for the text; its "top" is where a text starts to rise
//     breakf()                    called when the element is clicked: stops the texts, or lets them go on
// The steps only set the pace: the text moves with each frame. For visitors who ask for reduced motion the texts
// change without rising and fading.
(function () {
    "use strict";

    const { brndfn } = window;
    const fadeTime = 1000;
    const tenthOfSecond = 100;

    const PARAGRAPH = { margin: "1em 0", fontStyle: "inherit", fontWeight: "inherit", fontSize: "inherit", lineHeight: "inherit" };

    // By element, for pages with several boxes: each run of this script takes the next one that isn't taken.
    const toggles = window.breakf?.toggles ?? new WeakMap();

    const messages = window.brndfnanimatemessage ?? [];
    const fadeColor = window.brndfnanimatebgcolor;
    const textColor = window.brndfnanimatecolor;
    const stepSize = window.brndfnscrollsize;
    const stepTime = Math.max(Number(window.brndfnanimatetextinterval) || 0, 1);
    const stayTime = (Number(window.brndfnanimatelayinterval) || 0) * tenthOfSecond;

    // Where a text stands and how much of the text colour it has, from 0 to 1, at a time since it appeared.
    function stateAt(time, distance) {
        if (brndfn.calm())
            return { risen: distance, colored: 1, bOver: time >= stayTime + 2 * fadeTime };
        const riseTime = stepSize > 0 ? (distance / stepSize) * stepTime : 0;
        const leaveTime = Math.max(riseTime, fadeTime) + stayTime;
        return {
            risen: time < riseTime ? (distance * time) / riseTime : distance,
            colored: Math.min(1, time / fadeTime, Math.max(0, 1 - (time - leaveTime) / fadeTime)),
            bOver: time >= leaveTime + fadeTime,
        };
    }

    // The fading colour reaches what a stylesheet of the page's colours otherwise, not what the author coloured.
    function write(element, html) {
        element.innerHTML = html;
        brndfn.repair(element);
        for (const part of element.querySelectorAll(":not([color], [style*=color])"))
            part.style.color = "inherit";
        for (const paragraph of element.querySelectorAll("p"))
            brndfn.pin(paragraph, PARAGRAPH);
    }

    function start(element) {
        const box = element.parentElement;
        brndfn.repair(element);
        const distance = Math.max(0, Number.parseFloat(getComputedStyle(element).top) || 0);
        let nMessage = -1;
        let time = 0;
        let drawn;

        // What is below the box's edge isn't seen yet; once it has risen, all of it is. In a narrow page the box
        // leaves its place before it sticks out.
        const { left, width, height } = box.style;
        Object.assign(box.style, {
            overflowY: "clip", boxSizing: "content-box", overflowWrap: "anywhere",
            left: `min(${left}, max(0px, 100% - ${width}))`, width: `min(${width}, 100%)`,
        });

        // The box is as high as the tallest text needs, from the start: nothing below it moves for a text.
        let tallest = 0;
        function makeRoom() {
            tallest = Math.max(tallest, element.offsetHeight);
            box.style.height = `max(${height}, ${tallest}px)`;
        }

        function showNext() {
            nMessage = (nMessage + 1) % messages.length;
            time = 0;
            write(element, messages[nMessage]);
            makeRoom();
        }

        function draw({ risen, colored }) {
            if (drawn?.risen !== risen)
                element.style.transform = `translateY(${-risen}px)`;
            if (drawn?.colored !== colored)
                element.style.color =
                    colored === 1 ? textColor : `color-mix(in srgb, ${textColor} ${100 * colored}%, ${fadeColor})`;
            drawn = { risen, colored };
        }
        const showInFull = () => draw({ risen: distance, colored: 1 });

        for (const message of messages) {
            write(element, message);
            makeRoom();
        }
        showNext();
        draw(stateAt(0, distance));
        const handle = brndfn.frames(element, (elapsed) => {
            time += elapsed;
            if (stateAt(time, distance).bOver)
                showNext();
            draw(stateAt(time, distance));
        });
        const stop = brndfn.stop(handle, "corner");
        box.append(stop.element);
        toggles.set(element, stop.toggle);

        // A link in the text that has focus is shown in full and isn't taken away under the visitor's hands.
        element.addEventListener("focusin", () => {
            showInFull();
            handle.pause("focus");
        });
        element.addEventListener("focusout", () => handle.resume("focus"));
        brndfn.onPrint((bPrinting) => {
            if (bPrinting) {
                write(element, messages.join(""));
                showInFull();
                box.style.height = "auto";
                handle.pause("print");
            } else {
                write(element, messages[nMessage]);
                makeRoom();
                handle.resume("print");
            }
        }, handle.signal);
    }

    // The click on a link in the text is the link's.
    window.breakf = () => {
        const { currentTarget, target } = window.event ?? {};
        if (!target?.closest("a"))
            toggles.get(currentTarget)?.();
    };
    window.breakf.toggles = toggles;

    if (messages.length > 0)
        brndfn.ready(() => {
            const boxes = [...document.querySelectorAll("#brndfntextanim")];
            const free = boxes.find((box) => !toggles.has(box));
            if (free)
                start(free);
        });
})();
