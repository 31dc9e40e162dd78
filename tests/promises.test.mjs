// What docs/promises.md says that holds a promise is there.
import assert from "node:assert/strict";
import { readFileSync } from "node:fs";
import path from "node:path";
import test from "node:test";

const root = path.resolve(import.meta.dirname ?? path.dirname(new URL(import.meta.url).pathname), "..");
const read = (file) => readFileSync(path.join(root, file), "utf8").replace(/\s+/g, " ");

test("every promise is held by a test", () => {
    const rows = [...read("docs/promises.md").matchAll(/\| ([^|]+\.) \| ([^|]+) \|/g)];
    assert.ok(rows.length > 15, "docs/promises.md has no tables");
    for (const [, promise, holders] of rows) {
        const found = [...holders.matchAll(/`([^`]+)` ("[^"]+"(?:, "[^"]+")*)/g)];
        assert.ok(found.length > 0, `nothing holds: ${promise}`);
        for (const [, file, words] of found) {
            for (const [, word] of words.matchAll(/"([^"]+)"/g))
                assert.ok(read(file).includes(word), `${file} has no "${word}"`);
        }
    }
});
