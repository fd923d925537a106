"use strict";

const refreshMs = 10000;

function duration(seconds) {
    if (seconds === null) {
        return "–";
    }
    if (seconds < 120) {
        return `${Math.round(seconds)} s`;
    }
    if (seconds < 7200) {
        return `${Math.round(seconds / 60)} min`;
    }
    return `${Math.round(seconds / 3600)} h`;
}

function row(robot) {
    const line = document.createElement("tr");
    line.className = robot.late ? "late" : "";
    const cells = [
        robot.name,
        robot.late ? "late" : "online",
        `${duration(robot.age)} ago`,
        robot.load ?? "–",
        robot.disk === null ? "–" : `${robot.disk} %`,
        duration(robot.uptime),
    ];
    for (const text of cells) {
        line.insertCell().textContent = text;
    }
    return line;
}

async function refresh() {
    const headline = document.getElementById("headline");
    try {
        const answer = await fetch("status.json", { cache: "no-store" });
        if (!answer.ok) {
            throw new Error(`status ${answer.status}`);
        }
        const fleet = await answer.json();
        headline.textContent = `${fleet.online} of ${fleet.total} robots online`;
        document.getElementById("robots").replaceChildren(...fleet.robots.map(row));
    } catch (error) {
        headline.textContent = "No summary available. Is the summary service running?";
    }
}

refresh();
setInterval(refresh, refreshMs);
