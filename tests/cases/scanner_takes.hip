take name Main kids 1
take name  shot_a  x
take name Last
take name 
Take name Upper
tak name X
take nameless
