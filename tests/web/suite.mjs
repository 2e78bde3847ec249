// The smallest of test runners: named cases in order, a line each, and a last line that counts.

export class Failure extends Error {}
// What this machine cannot show; says why.
export class Skip extends Error {}

export function expect(truth, what) {
    if (!truth) {
        throw new Failure(what);
    }
}

export function same(got, wanted, what) {
    const [a, b] = [JSON.stringify(got), JSON.stringify(wanted)];
    expect(a === b, `${what}: ${a}, not ${b}`);
}

// Waits until a function returns something true, and returns that. Nothing is awaited for as long as
// it may take: it is looked at again and again.
export async function until(what, look, seconds = 60) {
    const end = Date.now() + seconds * 1000;
    for (;;) {
        const got = await look();
        if (got) {
            return got;
        }
        expect(Date.now() < end, `after ${seconds} s not yet: ${what}`);
        await new Promise((resolve) => setTimeout(resolve, 50));
    }
}

// What `act` comes to, or a failure when it takes longer than `limit` seconds: a browser that has
// stopped answering must not stop the cases after it.
function within(limit, act) {
    let timer = null;
    const late = new Promise((_, reject) => {
        timer = setTimeout(() => reject(new Failure(`no end after ${limit} s, the limit of a case`)), limit * 1000);
    });
    return Promise.race([act(), late]).finally(() => clearTimeout(timer));
}

// cases: [[name, function]]. Returns how many failed; prints the lines.
export async function run(cases, { only = "", prefix = "", limit = 600 } = {}) {
    const counts = { passed: 0, failed: 0, skipped: 0 };
    for (const [name, act] of cases.filter(([name]) => new RegExp(only).test(name))) {
        const start = Date.now();
        let fault = null;
        try {
            await within(limit, act);
        } catch (error) {
            fault = error;
        }
        const how = !fault ? "passed" : fault instanceof Skip ? "skipped" : "failed";
        ++counts[how];
        const seconds = ((Date.now() - start) / 1000).toFixed(1);
        console.log(`${{ passed: "ok    ", skipped: "skip  ", failed: "FAILED" }[how]} ${prefix}${name} (${seconds} s)`);
        if (fault) {
            console.log(fault instanceof Failure || fault instanceof Skip ? `       ${fault.message}` : fault.stack);
        }
    }
    return counts;
}

export function report({ passed, failed, skipped = 0 }) {
    console.log(`${passed} passed, ${failed} failed${skipped ? `, ${skipped} skipped` : ""}`);
    process.exitCode = failed || !passed ? 1 : 0;
}
