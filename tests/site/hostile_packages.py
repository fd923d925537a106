"""Packages of people who want to be more than text."""
from xml.sax.saxutils import escape, quoteattr

ATTACKS = (
    "<script>window.attacked = 1; alert(1)</script>",
    "</title></script></style><img src=x onerror='window.attacked = 1; alert(2)'>",
    "\" onmouseover=\"window.attacked = 1\" autofocus onfocus=\"window.attacked = 1; alert(3)",
    "'><svg onload='window.attacked = 1; alert(4)'>",
    "<iframe srcdoc='<script>parent.attacked = 1</script>'></iframe>",
    "javascript:window.attacked=1",
    "<!--", "]]>", "&lt;b&gt;&amp;", "{{7*7}} ${7*7}",
    "<base href='https://example.org/'><form action='https://example.org/'><button>Buy</button></form>",
    "\u202e\u2066desrever",
    "<b>" + "very long " * 100,
)


def manifest(attack):
    """A manifest with the attack wherever a text can stand."""
    text, value = escape(attack), quoteattr(attack)
    return f"""<package uuid={value} version={value} author={value} organization={value} date={value} channel={value}
  typeVersion={value}>
  <names><name lang="en">{text}</name><name lang={value}>{text}</name></names>
  <descriptions><description lang="en">{text}</description><description lang={value}>{text}</description></descriptions>
  <supportedLanguages><language>en</language><language>{text}</language></supportedLanguages>
  <descriptionLanguages><language>en</language><language>{text}</language></descriptionLanguages>
  <contents>
    <behaviorContent path={value}>
      <nature>{text}</nature>
      <names><name lang={value}>{text}</name></names>
      <descriptions><description lang={value}>{text}</description></descriptions>
      <tags><tag lang={value}>{text}</tag></tags>
      <triggerSentences><sentence lang={value}>{text}</sentence></triggerSentences>
      <loadingResponses><sentence lang={value}>{text}</sentence></loadingResponses>
    </behaviorContent>
    <dialogContent topicName={value} typeVersion={value}><topic language={value} path={value}/></dialogContent>
    <languageContent path={value}><engine name={value} version={value}/><locale>{text}</locale></languageContent>
  </contents>
  <requirements>
    <robotRequirement model={value} minHeadVersion={value} maxHeadVersion={value} minBodyVersion={value}/>
    <morvoRequirement minVersion={value} maxVersion={value}/>
  </requirements>
  <services><service name={value} execStart={value}><envVar name={value} value={value}/></service></services>
  <executableFiles><file path={value}/></executableFiles>
</package>
"""


def write(folder):
    """Each as a package in the folder; one that is no XML at all is among them."""
    for number, attack in enumerate(ATTACKS):
        package = folder / f"attack-{number}"
        package.mkdir(parents=True)
        (package / "manifest.xml").write_text(manifest(attack), encoding="utf-8")
    broken = folder / "broken <img src=x onerror=alert(5)>"
    broken.mkdir()
    (broken / "manifest.xml").write_text("<package><script>alert(6)</wrong></package>", encoding="utf-8")
