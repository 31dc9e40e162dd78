// A disk that fails and a process that is killed: each system call that touches the author's files fails once with each
// of its errors, and is once the last one, in everything that writes files.
//
//     node system_calls.mjs PROGRAM HOST [STEP]       every STEP-th case only
//
// Whatever happens, a file is the old one or the new one, what wasn't done is said, no descriptor stays open, and the
// next writer leaves nothing behind that wasn't there after an undisturbed run. Needs strace.
import { execFile, execFileSync } from "node:child_process";
import { cpSync, mkdirSync, mkdtempSync, readdirSync, readFileSync, realpathSync, rmSync, statSync,
    writeFileSync } from "node:fs";
import os from "node:os";
import path from "node:path";

const [program, host, step = "1"] = process.argv.slice(2);
const examples = path.resolve(import.meta.dirname ?? path.dirname(new URL(import.meta.url).pathname), "../../examples");
const root = realpathSync(mkdtempSync(path.join(os.tmpdir(), "orrelix-faults-")));

// What they fail with; the others with EIO. An absent file is no fault but a fact, so ENOENT is none of them.
const errors = {
    openat: ["EIO", "EACCES", "EMFILE", "ENOSPC"], mkdir: ["ENOSPC", "EACCES"], rename: ["ENOSPC", "EACCES"],
    write: ["ENOSPC", "EIO"], unlink: ["EACCES"], flock: ["ENOLCK"], copy_file_range: ["EIO", "ENOSPC"],
};

// In a folder F that holds what `start` makes. What comes next in that folder is the same once more, or `next`.
const effect = ["--effect", "Link Select Table", "--set", "m_Texts=a", "--set", "m_ScriptPath=js/",
    "--set", "m_ImagePath=images/"];
const changes = ["--set", "m_Texts=a", "--set", "m_Texts=b", "--set", "m_Images=F/work/house.gif",
    "--set", "m_Images=F/pictures/book.gif"];
const commands = {
    WriteConfigFile: {
        start: [],
        run: [host, "F/pictures/cool_link_rich.cfg", "F/work/new.cfg"],
        copies: /\.(gif|js)$/, // of which the component tells nobody
    },
    new: {
        start: [],
        run: [program, "new", "F/work/new.cfg", ...effect, "--set", "m_Images=F/pictures/house.gif"],
        next: [program, "new", "F/work/next.cfg", "--effect", "Color Link"],
    },
    edit: {
        start: [["new", "F/work/a.cfg", ...effect, "--set", "m_Images=F/pictures/house.gif"]],
        run: [program, "edit", "F/work/a.cfg", ...changes],
        next: [program, "edit", "F/work/a.cfg", ...changes, "--overwrite"],
    },
    publish: {
        start: [["new", "F/work/a.cfg", "--title", "t", ...effect, "--set", "m_Images=F/pictures/house.gif"],
            ["publish", "F/work/a.cfg", "--page", "F/site/p.html", "--site", "F/site"],
            ["edit", "F/work/a.cfg", "--set", "m_Images=F/pictures/book.gif"]],
        run: [program, "publish", "F/work/a.cfg", "--page", "F/site/p.html", "--site", "F/site"],
    },
    preview: {
        start: [],
        run: [program, "preview", "F/pictures/cool_link_rich.cfg", "F/pictures/tool_tip_rich.cfg", "--out", "F/out", "--index"],
        varying: /index\.html$/, // has the pages that could be made
    },
};

function run(folder, command, tracing = []) {
    const words = [...tracing, ...command].map((word) => word.replaceAll("F/", `${folder}/`));
    const env = { ...process.env, LC_ALL: "C.UTF-8", XDG_CONFIG_HOME: `${folder}.settings`, XDG_RUNTIME_DIR: `${folder}.settings`,
        XDG_CONFIG_DIRS: "/none", DISPLAY: "", WAYLAND_DISPLAY: "" };
    return new Promise((done) => execFile(words[0], words.slice(1), { env, timeout: 60000 }, (error, out, complaint) =>
        done({ code: error ? error.code ?? error.signal : 0, out, complaint })));
}

// Every file and its bytes, but for the time at which it was written, and where an image lies now: beside it or, where
// it couldn't be copied, where it was.
function filesOf(folder) {
    const all = readdirSync(folder, { recursive: true }).map((name) => path.join(folder, name));
    return new Map(all.filter((file) => statSync(file).isFile()).map((file) => [
        file.slice(folder.length + 1), readFileSync(file, "latin1").replace(/^LastUpdateTime = .*$/m, "")
            .replace(/^([^= ]+\.gif)=.*=/gm, "$1=")]));
}

async function makeStart(name, folder) {
    for (const part of ["pictures", "work", "site"])
        mkdirSync(path.join(folder, part), { recursive: true });
    cpSync(examples, path.join(folder, "pictures"), { recursive: true, filter: (file) => !/pages|hosts/.test(file) });
    writeFileSync(path.join(folder, "site/p.html"), "<html><head></head><body><!-- vignel: t --></body></html>");
    for (const words of commands[name].start) {
        const { code, complaint } = await run(folder, [program, ...words]);
        if (code !== 0)
            throw new Error(`${words}: ${complaint}`);
    }
}

const callsOf = (trace) => readFileSync(trace, "utf8").split("\n").filter((line) => /^\d+ +\w+\(/.test(line))
    .map((line) => line.replace(/^\d+ +/, ""));
const tracing = (trace, inject = []) =>
    ["strace", "-f", "--seccomp-bpf", "-y", "-s", "0", "-o", trace, "-e", "trace=%file,%desc", ...inject, "-e", "signal=none"];

// The cases: each call that touches the folder or the scripts, with each of its errors and the kill.
function casesOf(calls, folder) {
    const counts = {};
    return calls.flatMap((line) => {
        const call = line.slice(0, line.indexOf("("));
        const when = counts[call] = (counts[call] ?? 0) + 1;
        if (call === "execve" || !(line.includes(folder) || /\.js[">]/.test(line)))
            return [];
        return [...(errors[call] ?? ["EIO"]).map((error) => `error=${error}`), "signal=SIGKILL"]
            .map((what) => ({ line, inject: `inject=${call}:${what}:when=${when}`, kill: what.startsWith("signal") }));
    });
}

function openAtEnd(calls, folder) {
    const open = new Map();
    for (const line of calls) {
        const opened = line.match(/^open.* = (\d+)</), closed = line.match(/^close\((\d+)</);
        if (opened && line.includes(folder))
            open.set(opened[1], line);
        if (closed)
            open.delete(closed[1]);
    }
    return [...open.values()];
}

const same = (left, right) => left.size === right.size && [...left].every(([file, bytes]) => right.get(file) === bytes);
const isTemporary = (file) => path.basename(file).startsWith(".orrelix-");

// What is wrong with how a command went that was disturbed.
async function faultsOf(name, { kill }, folder, before, after, outcome, calls) {
    const { copies, varying, next: another, run: command } = commands[name];
    const faults = [], now = filesOf(folder), killed = outcome.code === "SIGKILL" || outcome.code === 137;
    for (const [file, bytes] of now) {
        const fine = outcome.code !== 0 && varying?.test(file)
            || isTemporary(file) && (killed || outcome.complaint.includes(path.basename(file)));
        if (![before.get(file), after.get(file)].includes(bytes) && !fine)
            faults.push(isTemporary(file) ? `leaves ${file}` : `${file} is neither the old one nor the new one`);
    }
    for (const file of before.keys()) {
        if (after.has(file) && !now.has(file))
            faults.push(`${file} is gone`);
    }
    const undone = [...after.keys()].filter((file) => now.get(file) !== after.get(file) && !copies?.test(file));
    if (outcome.code === 0 && undone.length > 0)
        faults.push(`says that all is done, and it isn't: ${undone}`);
    if (typeof outcome.code !== "number" && !(kill && killed))
        faults.push(`ends with ${outcome.code}`);
    if (outcome.code !== 0 && !killed && command[0] === program && !outcome.complaint)
        faults.push("fails without a word");
    if (!killed)
        faults.push(...openAtEnd(calls, folder).map((line) => `leaves open: ${line}`));
    const next = await run(folder, another ?? command), last = filesOf(folder);
    if (next.code !== 0)
        faults.push(`keeps the next from its work: ${next.complaint}`);
    const left = [...last.keys()].filter((file) => another ? isTemporary(file) : last.get(file) !== after.get(file));
    if (left.length > 0)
        faults.push(`leaves something else behind after the next: ${left}`);
    return faults;
}

let nCases = 0, nFaults = 0;

async function tryCommand(name) {
    const start = path.join(root, `${name}.start`), folder = path.join(root, name), trace = path.join(root, `${name}.trace`);
    const fresh = () => {
        for (const gone of [folder, `${folder}.settings`])
            rmSync(gone, { recursive: true, force: true });
        cpSync(start, folder, { recursive: true });
        mkdirSync(`${folder}.settings`);
    };
    await makeStart(name, folder);
    cpSync(folder, start, { recursive: true });
    const before = filesOf(folder);
    fresh();
    const undisturbed = await run(folder, commands[name].run, tracing(trace));
    const after = filesOf(folder);
    if (undisturbed.code !== 0 || same(before, after))
        throw new Error(`${name} doesn't work: ${undisturbed.complaint}`);
    const all = casesOf(callsOf(trace), folder), chosen = all.filter((_, nCase) => nCase % Number(step) === 0);
    for (const one of chosen) {
        fresh();
        const outcome = await run(folder, commands[name].run, tracing(trace, ["-e", one.inject]));
        const faults = await faultsOf(name, one, folder, before, after, outcome, callsOf(trace));
        if (faults.length > 0)
            console.log(`${name}, ${one.inject}: ${one.line}\n    ${faults.join("\n    ")}\n    said: ${outcome.complaint}`);
        nFaults += faults.length;
    }
    nCases += chosen.length;
    console.log(`${name}: ${chosen.length} of ${all.length} cases`);
}

execFileSync("strace", ["-V"], { stdio: "ignore" });
const began = Date.now();
await Promise.all(Object.keys(commands).map(tryCommand));
console.log(`${nCases} system calls failed or killed, ${nFaults} faults, ${Math.round((Date.now() - began) / 1000)} s`);
rmSync(root, { recursive: true });
process.exitCode = nFaults > 0 || nCases === 0 ? 1 : 0;
