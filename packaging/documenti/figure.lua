-- A paragraph that is one picture becomes a figure: its text, which the source shows to who sees no pictures, stands below.
function Para(paragrafo)
    local immagine = paragrafo.content[1]
    if #paragrafo.content ~= 1 or immagine.t ~= "Image" then
        return nil
    end
    return pandoc.Div({ pandoc.Plain({ immagine }), pandoc.Para(immagine.caption) }, { class = "figura" })
end

-- The pages that lie in one folder lead to each other; what the packages do not hold is named, without a way to it.
local pagine = { ["guida.md"] = "guida.html", ["integrators.md"] = "integrators.html", ["security.md"] = "security.html" }

function Link(collegamento)
    local meta = collegamento.target
    if meta:match("^#") or meta:match("^%a+:") then
        return nil
    end
    if not pagine[meta] then
        return collegamento.content
    end
    collegamento.target = pagine[meta]
    return collegamento
end
