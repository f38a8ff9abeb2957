"""The faults that tools/mutate can put into a line of C++."""
import collections, re

PAIRS = {"comparison": [("<", "<="), (">", ">=")], "equality": [("==", "!=")], "logic": [("&&", "||")],
         "arithmetic": [("+", "-"), ("+=", "-="), ("*", "/")], "bits": [("&", "|"), ("&=", "|=")]}
OPPOSITE = {a: (name, b) for name, pairs in PAIRS.items() for p in pairs for a, b in (p, p[::-1])}
SPACED = re.compile(r"(?<= )(" + "|".join(map(re.escape, OPPOSITE)) + r")(?= |$)")
INTEGER = re.compile(r"(?<![\w.'])(\d[\d']*)(?=[uUlL]*(?![\w.']))")
FRACTION = re.compile(r"(?<![\w.'])(\d+)(?=\.\d+(?!\w))")
ARGUMENT = r"[\w:.\[\]&*]+(?:->\w+)*(?:\(\))?"
ARGUMENTS = re.compile(rf"(?<=\w\()({ARGUMENT}), ({ARGUMENT})(?=[,)])|(?<=, )({ARGUMENT}), ({ARGUMENT})(?=\)|,)")
KEYWORDS = "return|if|for|while|switch|case|default|using|else|do|goto|new|public|private|protected|sizeof|co_\\w+"
PLACE = r"[*]*[\w:]+(?:::\w+|\.\w+|->\w+|\[[^\]]*\]|\([^()]*\))*"
ACT = re.compile(rf"(?!(?:{KEYWORDS})\b|.*\) = (?:default|delete|0);)"
                 rf"(?:{PLACE}\(.*\)|{PLACE} [-+*/|&]?= .*|(?:\+\+|--){PLACE}"
                 r"|delete .*|throw .*|return|break|continue);")
CONTROL = re.compile(r"\b(?:if|while)(?: constexpr)? ?\(")
OUTSIDE = re.compile(r"\s*(?:#|using\b|namespace\b|template\b|extern\b|friend\b|typedef\b|public:|private:|protected:)")


def masked(text):
    """The text with comments, texts, characters and the preprocessor's lines blanked, each place kept."""
    def blank(found):
        whole = found.group(0)
        if whole[0].isdigit(): return whole  # 1'000 holds no character
        mark = " " if whole[0] == "/" else "\1"
        return "".join(c if c == "\n" else mark for c in whole)
    text = re.sub(r"""\b\d[\w']*|//[^\n]*|/\*.*?\*/|\bR"([^(]*)\(.*?\)\1"|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])+'""",
                  blank, text, flags=re.S)
    lines, joined = text.split("\n"), False
    for at, line in enumerate(lines):
        if joined or OUTSIDE.match(line): lines[at] = ""
        joined = (joined or line.lstrip().startswith("#")) and line.endswith("\\")
    text = "\n".join(lines)
    for found in re.finditer(r"\b(?:static_)?assert\(", text):
        end = closing(text, found.end() - 1) or found.end()
        text = text[:found.start()] + re.sub(r"[^\n]", " ", text[found.start():end]) + text[end:]
    return text


def closing(text, opening):
    """Behind the parenthesis that closes the one at the place; None when it is not closed."""
    depth = 0
    for at in range(opening, len(text)):
        depth += (text[at] == "(") - (text[at] == ")")
        if depth == 0: return at + 1
    return None


def faults_of(line, mask, begins):
    """Operator -> the line's possible new forms. begins: a statement begins with the line."""
    found = collections.defaultdict(list)

    def put(name, begin, end, text):
        found[name].append(line[:begin] + text + line[end:])

    for hit in SPACED.finditer(mask):
        beside = mask[hit.start() - 2:hit.start()] + mask[hit.end() + 1:hit.end() + 2]
        if hit.group(1) == "+" and "\1" in beside: continue  # texts joined
        name, other = OPPOSITE[hit.group(1)]
        put(name, hit.start(), hit.end(), other)
    for hit in INTEGER.finditer(mask):
        number = int(hit.group(1).replace("'", "")) if not re.match(r"0\d", hit.group(1)) else None
        if number is None: continue
        put("constant", hit.start(), hit.end(), str(number + 1))
        if number > 0: put("constant", hit.start(), hit.end(), str(number - 1))
    for hit in FRACTION.finditer(mask):
        put("constant", hit.start(), hit.end(), str(int(hit.group(1)) + 1))
    for hit in re.finditer(r"\b(?:true|false)\b", mask):
        put("true/false", hit.start(), hit.end(), "false" if hit.group(0) == "true" else "true")
    for hit in re.finditer(r"(?<![\w)\]])!(?=[\w(:*])", mask):
        put("condition", hit.start(), hit.end(), "")
    for hit in CONTROL.finditer(mask):
        end = closing(mask, hit.end() - 1)
        if not end or re.search(r";|^[\w:<>*&, ]+ [*&]*\w+ = ", mask[hit.end():end]): continue
        put("condition", hit.end(), end - 1, f"!({line[hit.end():end - 1]})")
    for hit in ARGUMENTS.finditer(mask):
        first, second = (1, 2) if hit.group(1) else (3, 4)
        a, b = line[slice(*hit.span(first))], line[slice(*hit.span(second))]
        if a != b: put("arguments", hit.start(), hit.end(), f"{b}, {a}")
    at = len(mask) - len(mask.lstrip()) if begins else None
    while at is not None:  # behind the conditions in front of it
        control = re.compile(r"(?:(?:\} )?else )?(?:if|for|while) ?\(|\} else |else ").match(mask, at)
        if not control: break
        at = control.end() if control.group(0).endswith("else ") else closing(mask, control.end() - 1)
        if at is not None and mask[at:at + 1] == " ": at += 1
    if at is not None:
        rest = mask[at:].rstrip()
        if ACT.fullmatch(rest): put("dropped", at, at + len(rest), ";")
        if re.fullmatch(r"return (?!\{\}|nullptr|std::nullopt|false|true|-?\d+;)[^;]+;", rest):
            put("returned", at, at + len(rest), "return {};")
    return found
