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

    // What an image's attributes say becomes its style, which no style sheet of the page overrules. 0 stands for a size
    // that nobody chose: the image shows in its own.
    function repairImage(image) {
        for (const side of ["width", "height"]) {
            const size = parseInt(image.getAttribute(side), 10);
            if (size > 0)
                image.style[side] = `${size}px`;
            else
                image.removeAttribute(side);
        }
        const border = parseInt(image.getAttribute("border"), 10);
        if (border >= 0)
            image.style.border = `${border}px solid`;
    }

    // Repairs the style attributes, the images and the <style> elements of an effect's markup. The attribute holds dropped
    // declarations only until a script sets one of the element's styles, so this has to come first.
    function repair(element) {
        for (const styled of [element, ...element.querySelectorAll("[style]")]) {
            const raw = styled.getAttribute("style");
            const repaired = raw && css(raw);
            if (repaired && repaired !== raw)
                styled.setAttribute("style", repaired);
        }
        element.querySelectorAll("img").forEach(repairImage);
        element.querySelectorAll("style").forEach(repairSheet);
        if (element.localName === "style")
            repairSheet(element);
    }

    // What a style sheet of the page's may say of any element of this kind has no say here; what the element's own
    // style says, has.
    function pin(element, values) {
        for (const [name, value] of Object.entries(values))
            element.style[name] ||= value;
    }

    // A table as its attributes have it.
    function pinTable(table) {
        const nBorder = parseInt(table.border, 10) || 0;
        const length = (text) => (/^\d+$/.test(text) ? `${text}px` : text);
        const border = (look) => ({ border: nBorder > 0 ? look : "0", borderColor: "revert" });
        pin(table, {
            width: length(table.width), maxWidth: "100%", margin: table.align === "center" ? "0 auto" : "0",
            boxSizing: "border-box", borderCollapse: "separate", borderSpacing: "2px", background: "none",
            color: "revert", textIndent: "0", fontStyle: "inherit", fontWeight: "inherit", ...border(`${nBorder}px outset`),
        });
        for (const cell of table.querySelectorAll("td"))
            pin(cell, {
                padding: "1px", boxSizing: "content-box", background: "none", color: "inherit", textAlign: "inherit",
                fontStyle: "inherit", fontWeight: "inherit", ...border("1px inset"),
            });
    }

    function ready(fn) {
        if (document.readyState === "loading")
            document.addEventListener("DOMContentLoaded", () => fn(), { once: true });
        else
            fn();
    }

    // The live collection as a function: truthy, and callable as call(...) says.
    function callable(native, call) {
        const forwarded = {
            apply: (target, self, given) => call(...given),
            get(target, key) {
                const value = native[key];
                return typeof value === "function" ? value.bind(native) : value;
            },
        };
        for (const trap of ["has", "ownKeys", "getOwnPropertyDescriptor", "getPrototypeOf"])
            forwarded[trap] = (target, ...rest) => Reflect[trap](native, ...rest);
        return new Proxy(() => {}, forwarded);
    }

    function replaceCollection(name, get) {
        Object.defineProperty(document, name, { configurable: true, enumerable: true, get });
    }

    // The page's own scripts take a truthy document.all for a browser of long ago, where half of what they would call
    // then is no longer there. So the effects' own text finds it truthy, and nobody else.
    const OWN_TEXT = /brndfnscrollmain2|\bLinkinitSelectBox\(|\bwriteSelectBox\(topArray/;
    const nativeAll = document.all;
    const truthyAll = callable(nativeAll, (...given) => nativeAll(...given));
    HTMLAllCollection.prototype.tags ??= (name) => document.getElementsByTagName(name);
    replaceCollection("all", () => (OWN_TEXT.test(document.currentScript?.text) ? truthyAll : nativeAll));

    const nativeLinks = document.links;
    const links = callable(nativeLinks, (key) => {
        const link = typeof key === "number" ? nativeLinks.item(key) : nativeLinks.namedItem(key);
        window.brndfn.onLinkAsked?.(link);
        return link;
    });
    replaceCollection("links", () => links);

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

    window.brndfn = { css, repair, pin, pinTable, ready };
})();
