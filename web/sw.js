// Keeps the page for visits without a network. The small files are fetched when it is installed; the
// program and the data are put into the same store by load.js, which needs them anyway. A new build
// has a new store: the old one goes.
const OURS = `ombrel ${new URL("./", self.location)} `;
const STORE = `${OURS}@build@`;
const FILES = [/*@files@*/];

self.addEventListener("install", (event) => {
    event.waitUntil((async () => {
        const store = await caches.open(STORE);
        await store.addAll(FILES.map((name) => new Request(name, { cache: "reload" })));
        })());
});

self.addEventListener("activate", (event) => {
    event.waitUntil((async () => {
        for (const name of await caches.keys()) {
            if (name.startsWith(OURS) && name !== STORE) {
                await caches.delete(name);
            }
        }
        await self.clients.claim();
    })());
});

// Only what is ours and stored; everything else goes its usual way.
self.addEventListener("fetch", (event) => {
    const url = new URL(event.request.url);
    if (event.request.method !== "GET" || !url.href.startsWith(self.registration.scope)) {
        return;
    }
    event.respondWith((async () => {
        const store = await caches.open(STORE);
        return (await store.match(event.request, { ignoreSearch: true })) ?? fetch(event.request);
    })());
});
