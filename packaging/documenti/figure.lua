-- A paragraph that is one picture becomes a figure: its text, which the source shows to who sees no pictures, stands below.
function Para(paragrafo)
    local immagine = paragrafo.content[1]
    if #paragrafo.content ~= 1 or immagine.t ~= "Image" then
        return nil
    end
    return pandoc.Div({ pandoc.Plain({ immagine }), pandoc.Para(immagine.caption) }, { class = "figura" })
end
