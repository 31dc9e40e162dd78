// Fade Select Box: a drop-down list of links that fades in. The text of the page gives, per box, a style sheet for
// the six classes PREFIX + "select", "selected", "selectTable", "option", "button" and "dropDown", and one call of
// writeSelectBox in a script at the place where the box is to appear.
(() => {
    "use strict";

    const brndfn = window.brndfn;

    const STYLE = `
        .brndfn-fade-field { display: flex; box-sizing: border-box; min-height: inherit; }
        .brndfn-fade-chosen { display: flex; align-items: center; box-sizing: border-box; flex: 1; min-width: 0; }
        .brndfn-fade-button { display: flex; align-items: center; box-sizing: border-box; flex: none;
            align-self: center; }`;
    document.head.append(Object.assign(document.createElement("style"), { textContent: STYLE }));

    function part(className, ...children) {
        const element = document.createElement("div");
        element.className = className;
        element.append(...children);
        return element;
    }

    function makeRow(option, className) {
        const row = part(className);
        // An Option's own text property would fold its blanks.
        row.innerHTML = option.textContent;
        return row;
    }

    // The drop button wears its pressed border until the pointer lets go, and then the released one. With the list
    // closed it is as the style sheet has it.
    function pressButton(field, button, downBorder, upBorder) {
        const ends = ["pointerup", "pointercancel"];
        function release() {
            button.style.cssText = brndfn.css(`border: ${upBorder}`);
            for (const end of ends)
                window.removeEventListener(end, release);
        }
        field.addEventListener("pointerdown", () => {
            button.style.cssText = brndfn.css(`border: ${downBorder}`);
            for (const end of ends)
                window.addEventListener(end, release);
        });
    }

    // options       Option objects: the text is the HTML of an item, the value its address
    // prefix        stands before the box's class names
    // size          as of a select element: 1, which the page's text always gives, is a drop-down list
    // onChange      script text that opens the address of this.options[this.selectedIndex]
    // boxStyle      margin, width and height of the box
    // overCss, sizedBorderCss   look and border of the item under the mouse
    // downBorder, upBorder      border of the drop button, pressed and released
    // steps, milliseconds       number of steps of a fade, and the time between two of them
    window.writeSelectBox = (
        options, prefix, size, onChange, boxStyle, overCss, sizedBorderCss, downBorder, upBorder, steps, milliseconds,
    ) => {
        const text = part("");
        const button = part(`${prefix}button brndfn-fade-button`);
        button.innerHTML = brndfn.dropDownArrow;
        const chosen = part(`${prefix}selected brndfn-fade-chosen`, text);
        const field = part(`${prefix}selectTable brndfn-fade-field`, chosen, button);
        const rows = options.map((option) => makeRow(option, `${prefix}option`));
        const list = part(`${prefix}dropDown`, ...rows);
        const box = part(`${prefix}select`, field, list);
        box.style.cssText = brndfn.css(boxStyle);
        // A large font or an image makes the box grow.
        box.style.minHeight = box.style.height;
        box.style.height = "";
        box.size = size;
        box.setAttribute("onchange", onChange);
        document.currentScript.after(box);
        brndfn.repair(box.closest("table"));

        const dropDown = brndfn.dropDown({
            box, field, text, list, rows, options,
            overCss: brndfn.css(`${overCss}; border: ${sizedBorderCss}`),
            onOpen: () => brndfn.fade(list, 1, steps, milliseconds),
            onClose(hide) {
                button.style.cssText = "";
                brndfn.fade(list, 0, steps, milliseconds, hide);
            },
        });
        list.style.opacity = 0;
        pressButton(field, button, downBorder, upBorder);
        field.addEventListener("click", () => dropDown.toggle());
        list.addEventListener("mouseover", (event) => dropDown.over(event));
        list.addEventListener("mouseout", () => dropDown.out());
        list.addEventListener("click", (event) => dropDown.click(event));
    };
})();
